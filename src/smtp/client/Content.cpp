#include "smtp/client/Content.h"

#include <string_view>
#include <utility>

namespace {

/// Up to here copying costs less than one more write.
constexpr qsizetype WorthSharing = 16'384;

} // namespace

QByteArray Segment::stuffed() const
{
    using namespace std::string_view_literals;
    if (isDotFree)
        return lines;
    const std::string_view all(lines.constData(), static_cast<std::size_t>(lines.size()));
    constexpr auto DotLine = "\n."sv;
    std::size_t found = all.find(DotLine);
    if (found == std::string_view::npos && !all.starts_with('.'))
        return lines;
    QByteArray result;
    result.reserve(lines.size() + 64);
    if (all.starts_with('.'))
        result += '.';
    std::size_t begin = 0;
    for (; found != std::string_view::npos; found = all.find(DotLine, begin)) {
        const std::string_view upToLineEnd = all.substr(begin, found + 1 - begin);
        result.append(upToLineEnd.data(), static_cast<qsizetype>(upToLineEnd.size()));
        result += '.';
        begin = found + 1;
    }
    const std::string_view rest = all.substr(begin);
    result.append(rest.data(), static_cast<qsizetype>(rest.size()));
    return result;
}

qint64 Content::size() const
{
    qint64 sum = 0;
    for (const Segment &segment : segments)
        sum += segment.lines.size();
    return sum;
}

QByteArray Content::toByteArray() const
{
    QByteArray whole;
    whole.reserve(size());
    for (const Segment &segment : segments)
        whole += segment.lines;
    return whole;
}

ContentWriter &ContentWriter::operator<<(const Segment &segment)
{
    if (segment.lines.size() < WorthSharing) {
        m_run += segment.lines;
    } else {
        endRun();
        m_content.segments += segment;
    }
    return *this;
}

bool ContentWriter::isAtLineStart() const
{
    return m_run.isEmpty() || m_run.endsWith('\n'); // segments are whole lines
}

Content ContentWriter::finish()
{
    if (!isAtLineStart())
        m_run += "\r\n";
    endRun();
    return std::exchange(m_content, {});
}

void ContentWriter::endRun()
{
    if (!m_run.isEmpty())
        m_content.segments += {std::exchange(m_run, {})};
}
