#include "ui/HtmlElements.h"

#include "ui/HtmlGuards.h"
#include "ui/HtmlLimits.h"

#include <litehtml/el_anchor.h>
#include <litehtml/el_body.h>
#include <litehtml/el_div.h>
#include <litehtml/el_font.h>
#include <litehtml/el_image.h>
#include <litehtml/el_para.h>
#include <litehtml/el_table.h>
#include <litehtml/el_td.h>
#include <litehtml/el_tr.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string>
#include <type_traits>

namespace {

using litehtml::tchar_t;
using litehtml::tstring;
using Document = std::shared_ptr<litehtml::document>;
using Element = std::shared_ptr<litehtml::element>;

// An attribute's number, as 1 when it is none.
int countIn(const tchar_t *text)
{
    const std::string_view digits(text);
    int number = 1;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

// An element that does its part only while there is patience, and without what would take the
// library for ever.
template <typename Base>
class Guarded : public Base
{
public:
    Guarded(const Document &document, HtmlLimits &limits) : Base(document), m_limits(limits) {}

    void set_attr(const tchar_t *name, const tchar_t *value) override
    {
        if (value && std::string_view(name) == "style")
            Base::set_attr(name, ordinaryDeclarations(value).c_str());
        else
            Base::set_attr(name, value);
    }
    void apply_stylesheet(const litehtml::css &css) override
    {
        if (!m_limits.isOver())
            Base::apply_stylesheet(css);
    }
    void parse_styles(bool isReparse) override
    {
        if (!m_limits.isOver())
            Base::parse_styles(isReparse);
    }
    void init() override
    {
        if (!m_limits.isOver())
            Base::init();
    }
    using Base::select;
    int select(const litehtml::css_selector &selector, bool applyPseudo) override
    {
        return m_limits.isOverNowAndThen() ? litehtml::select_no_match
                                           : Base::select(selector, applyPseudo);
    }
    int render(int x, int y, int width, bool secondPass) override
    {
        return m_limits.isOver() ? 0 : Base::render(x, y, width, secondPass);
    }

protected:
    // An attribute that says what a declaration would say.
    void hint(const char *attribute, const char *property)
    {
        if (const tchar_t *value = this->get_attr(attribute))
            this->m_style.add_property(property, value, nullptr, false, this);
    }

    HtmlLimits &m_limits;
};

class Body final : public Guarded<litehtml::el_body>
{
public:
    using Guarded::Guarded;

    void parse_attributes() override
    {
        hint("bgcolor", "background-color");
        hint("text", "color");
        Guarded::parse_attributes();
    }
};

class Cell final : public Guarded<litehtml::el_td>
{
public:
    using Guarded::Guarded;

    // A place is kept for every cell that it spans.
    void set_attr(const tchar_t *name, const tchar_t *value) override
    {
        const std::string_view attribute(name);
        const bool isSpan = value && (attribute == "colspan" || attribute == "rowspan");
        Guarded::set_attr(name,
                          isSpan ? std::to_string(m_limits.span(countIn(value))).c_str() : value);
    }
    void parse_attributes() override
    {
        Element table = parent();
        while (table && std::string_view(table->get_tagName()) != "table")
            table = table->parent();
        if (table) {
            const tstring padding = table->get_attr("cellpadding", "");
            if (!padding.empty())
                m_style.add_property("padding", (padding + "px").c_str(), nullptr, false, this);
            if (countIn(table->get_attr("border", "0")) > 0)
                m_style.add_property("border", "1px solid #808080", nullptr, false, this);
        }
        Guarded::parse_attributes();
    }
};

// What stands around a table centres it, as old mail programs want it.
class Table final : public Guarded<litehtml::el_table>
{
public:
    using Guarded::Guarded;

    void parse_attributes() override
    {
        if (isCentred()) {
            m_style.add_property("margin-left", "auto", nullptr, false, this);
            m_style.add_property("margin-right", "auto", nullptr, false, this);
        }
        Guarded::parse_attributes();
    }

private:
    [[nodiscard]] bool isCentred() const
    {
        for (Element outer = parent(); outer; outer = outer->parent()) {
            const std::string_view tag(outer->get_tagName());
            if (tag == "center")
                return true;
            if (tag == "table")
                return false;
            if (const tchar_t *align = outer->get_attr("align"))
                return litehtml::t_strcasecmp(align, "center") == 0;
        }
        return false;
    }
};

// A list numbers its items.
class NumberedList final : public Guarded<litehtml::html_tag>
{
public:
    using Guarded::Guarded;

    // Small and capital letters differ here, which a style sheet could not say.
    void parse_attributes() override
    {
        const std::string_view type(get_attr("type", ""));
        const auto style = [&] {
            if (type == "a")
                return "lower-alpha";
            if (type == "A")
                return "upper-alpha";
            if (type == "i")
                return "lower-roman";
            return type == "I" ? "upper-roman" : "decimal";
        };
        m_style.add_property("list-style-type", style(), nullptr, false, this);
        Guarded::parse_attributes();
    }

    void init() override
    {
        constexpr int MaxNumber = 99'999;
        int number = countIn(get_attr("start", "1"));
        for (const Element &child : m_children) {
            if (std::string_view(child->get_tagName()) != "li")
                continue;
            if (const tchar_t *value = child->get_attr("value"))
                number = countIn(value);
            number = std::clamp(number, -MaxNumber, MaxNumber);
            child->set_attr("list_index", std::to_string(number).c_str());
            ++number;
        }
        Guarded::init();
    }
};

// What a style element says, tamed.
class Style final : public litehtml::element
{
public:
    using element::element;

    bool appendChild(const Element &child) override
    {
        child->get_text(m_text);
        return true;
    }
    void parse_attributes() override
    {
        get_document()->add_stylesheet(ordinaryStyleSheet(m_text).c_str(), nullptr,
                                       m_media.c_str());
    }
    void set_attr(const tchar_t *name, const tchar_t *value) override
    {
        if (value && std::string_view(name) == "media")
            m_media = value;
    }
    const tchar_t *get_tagName() const override { return "style"; }

private:
    tstring m_text;
    tstring m_media;
};

// A picture that cannot be shown leaves a frame with its text.
class Picture final : public Guarded<litehtml::el_image>
{
public:
    Picture(const Document &document, HtmlLimits &limits, PictureTexts &texts)
        : Guarded(document, limits), m_texts(texts)
    {}

    void parse_attributes() override
    {
        m_texts.insert(QString::fromUtf8(get_attr("src", "")),
                       QString::fromUtf8(get_attr("alt", "")).simplified());
        Guarded::parse_attributes();
    }

private:
    PictureTexts &m_texts;
};

} // namespace

Element makeElement(std::string_view tag, const Document &document, HtmlLimits &limits,
                    PictureTexts &pictureTexts)
{
    const auto make = [&]<typename Kind>(std::type_identity<Kind>) -> Element {
        return std::make_shared<Kind>(document, limits);
    };
    const auto guarded = [&]<typename Base>(std::type_identity<Base>) {
        return make(std::type_identity<Guarded<Base>>());
    };
    if (tag == "br" || tag == "link" || tag == "title" || tag == "base" || tag == "script")
        return nullptr; // the library's own
    if (tag == "style")
        return std::make_shared<Style>(document);
    if (tag == "img")
        return std::make_shared<Picture>(document, limits, pictureTexts);
    if (tag == "td" || tag == "th")
        return make(std::type_identity<Cell>());
    if (tag == "body")
        return make(std::type_identity<Body>());
    if (tag == "ol")
        return make(std::type_identity<NumberedList>());
    if (tag == "p")
        return guarded(std::type_identity<litehtml::el_para>());
    if (tag == "table")
        return make(std::type_identity<Table>());
    if (tag == "tr")
        return guarded(std::type_identity<litehtml::el_tr>());
    if (tag == "a")
        return guarded(std::type_identity<litehtml::el_anchor>());
    if (tag == "div")
        return guarded(std::type_identity<litehtml::el_div>());
    if (tag == "font")
        return guarded(std::type_identity<litehtml::el_font>());
    return guarded(std::type_identity<litehtml::html_tag>());
}
