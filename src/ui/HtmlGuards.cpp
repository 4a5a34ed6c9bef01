#include "ui/HtmlGuards.h"

#include <gumbo.h>

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace {

// What gumbo takes while it parses. Its own way of freeing a tree goes as deep as the tree does, so
// everything is freed at once; and a text that makes it take too much or too long is given up.
class Arena
{
public:
    explicit Arena(QDeadlineTimer deadline) : m_deadline(deadline) {}

    // Where to go on then: gumbo, being C, can be jumped out of.
    std::jmp_buf &wayOut() { return m_wayOut; }

    static void *take(void *arena, std::size_t size)
    {
        return static_cast<Arena *>(arena)->take(size);
    }
    static void release(void * /*arena*/, void * /*block*/) {}

private:
    static constexpr std::size_t ChunkSize = 256 * 1024;
    static constexpr std::size_t MaxSize = 256 * 1024 * 1024;

    void *take(std::size_t size)
    {
        constexpr std::size_t Alignment = alignof(std::max_align_t);
        size = (size + Alignment - 1) / Alignment * Alignment;
        if (size > m_left || m_deadline.hasExpired())
            std::longjmp(m_wayOut, 1);
        m_left -= size;
        if (size > m_freeInChunk) {
            m_freeInChunk = std::max(size, ChunkSize);
            m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(m_freeInChunk));
            m_next = m_chunks.back().get();
        }
        m_freeInChunk -= size;
        return std::exchange(m_next, m_next + size);
    }

    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::byte *m_next = nullptr;
    std::size_t m_freeInChunk = 0;
    std::size_t m_left = MaxSize;
    QDeadlineTimer m_deadline;
    std::jmp_buf m_wayOut{};
};

const GumboVector *childrenOf(const GumboNode &node)
{
    switch (node.type) {
    case GUMBO_NODE_DOCUMENT:
        return &node.v.document.children;
    case GUMBO_NODE_ELEMENT:
    case GUMBO_NODE_TEMPLATE:
        return &node.v.element.children;
    default:
        return nullptr;
    }
}

bool fits(const GumboNode &root)
{
    // A level takes some 2 KB of the stack.
    constexpr int MaxDepth = 256;
    // An element takes about 1 KB and 10 microseconds.
    constexpr int MaxNodes = 100'000;
    int nodes = 0;
    std::vector<std::pair<const GumboNode *, int>> open{{&root, 0}};
    while (!open.empty()) {
        const auto [node, depth] = open.back();
        open.pop_back();
        if (depth > MaxDepth || ++nodes > MaxNodes)
            return false;
        const GumboVector *children = childrenOf(*node);
        for (unsigned i = 0; children && i < children->length; ++i)
            open.emplace_back(static_cast<const GumboNode *>(children->data[i]), depth + 1);
    }
    return true;
}

// Nothing when the text is given up. In a function of its own: what changed in the one that a jump
// leads back to must not be looked at.
const GumboOutput *parse(Arena &arena, const QByteArray &html)
{
    GumboOptions options = kGumboDefaultOptions;
    options.allocator = &Arena::take;
    options.deallocator = &Arena::release;
    options.userdata = &arena;
    if (setjmp(arena.wayOut()) != 0)
        return nullptr;
    return gumbo_parse_with_options(&options, html.constData(), std::size_t(html.size()));
}

std::string withoutComments(std::string_view css)
{
    std::string rest;
    while (!css.empty()) {
        const std::size_t start = css.find("/*");
        rest += css.substr(0, start);
        if (start == css.npos)
            break;
        const std::size_t end = css.find("*/", start + 2);
        css = end == css.npos ? std::string_view() : css.substr(end + 2);
    }
    return rest;
}

// A variable may be its own value, which the layout would look up for ever.
std::string withoutVariables(std::string css)
{
    for (std::size_t at = css.find("var("); at != css.npos; at = css.find("var(", at))
        css[at] = ' ';
    return css;
}

// Selectors of any length and blocks of any depth would be read by functions that call themselves.
bool isPlain(std::string_view css)
{
    constexpr int MaxDepth = 4;
    constexpr std::size_t MaxSelector = 1000;
    int depth = 0;
    std::size_t start = 0;
    for (std::size_t at = css.find_first_of("{},;"); at != css.npos;
         at = css.find_first_of("{},;", at + 1)) {
        if (css[at] == '{' && (++depth > MaxDepth || at - start > MaxSelector))
            return false;
        if (css[at] == '}')
            depth = std::max(depth - 1, 0);
        start = at;
    }
    return true;
}

} // namespace

bool isOrdinaryHtml(const QByteArray &html, QDeadlineTimer deadline)
{
    constexpr qsizetype MaxSize = 2'000'000;
    if (html.size() > MaxSize)
        return false;
    Arena arena(deadline);
    const GumboOutput *tree = parse(arena, html);
    return tree && fits(*tree->document);
}

std::string ordinaryStyleSheet(std::string_view css)
{
    constexpr std::size_t MaxSize = 256 * 1024;
    if (css.size() > MaxSize)
        return {};
    const std::string text = withoutComments(css);
    return isPlain(text) ? withoutVariables(text) : std::string();
}

std::string ordinaryDeclarations(std::string declarations)
{
    return withoutVariables(std::move(declarations));
}
