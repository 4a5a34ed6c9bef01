#include "ui/HtmlPage.h"

#include "ui/HtmlFolder.h"
#include "ui/HtmlGuards.h"
#include "ui/HtmlPainting.h"
#include "ui/HtmlStyle.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFontMetrics>
#include <QLocale>
#include <QPainter>

#include <litehtml/litehtml.h>

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
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

using litehtml::tchar_t;
using litehtml::tstring;
using Document = std::shared_ptr<litehtml::document>;
using Element = std::shared_ptr<litehtml::element>;

constexpr int DefaultFontSize = 16;

QRect rectOf(const litehtml::position &place)
{
    return {place.x, place.y, place.width, place.height};
}

QColor colorOf(const litehtml::web_color &color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

Corners cornersOf(const litehtml::border_radiuses &radii)
{
    return {{radii.top_left_x, radii.top_left_y},
            {radii.top_right_x, radii.top_right_y},
            {radii.bottom_right_x, radii.bottom_right_y},
            {radii.bottom_left_x, radii.bottom_left_y}};
}

BorderLine lineOf(const litehtml::border &border)
{
    using Kind = BorderLine::Kind;
    const auto kind = [&] {
        switch (border.style) {
        case litehtml::border_style_none:
        case litehtml::border_style_hidden:
            return Kind::None;
        case litehtml::border_style_dotted:
            return Kind::Dotted;
        case litehtml::border_style_dashed:
            return Kind::Dashed;
        case litehtml::border_style_double:
            return Kind::Double;
        default:
            return Kind::Solid;
        }
    };
    return {border.width, kind(), colorOf(border.color)};
}

// How much time and room a page may take. Layouts can be written whose time doubles with each
// further element, and the library has no way to be stopped; but it asks each element to do its
// part.
class Limits
{
public:
    explicit Limits(std::chrono::milliseconds patience) : m_patience(patience) {}

    void begin()
    {
        m_end = QDeadlineTimer(m_patience);
        m_isOver = false;
    }
    // Once it is over it stays over: the layout lacks something then.
    [[nodiscard]] bool isOver() { return m_isOver = m_isOver || m_end.hasExpired(); }
    // The same for questions that come by the million.
    [[nodiscard]] bool isOverNowAndThen() { return ++m_questions % 16 == 0 ? isOver() : m_isOver; }
    [[nodiscard]] bool wasEnough() const { return !m_isOver; }
    void prolong(qint64 time) { m_end += time; }
    // How many columns or rows a cell may span that wants so many.
    [[nodiscard]] int span(int wanted)
    {
        const int further = std::clamp(wanted - 1, 0, std::min(MaxSpan, m_spansLeft));
        m_spansLeft -= further;
        return further + 1;
    }

private:
    static constexpr int MaxSpan = 100;

    std::chrono::milliseconds m_patience;
    QDeadlineTimer m_end;
    bool m_isOver = false;
    unsigned m_questions = 0;
    int m_spansLeft = 10'000;
};

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
    Guarded(const Document &document, Limits &limits) : Base(document), m_limits(limits) {}

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

    Limits &m_limits;
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

} // namespace

// Answers the library's questions and draws what it wants drawn.
class HtmlPage::Canvas final : public litehtml::document_container
{
public:
    Canvas(const QString &folder, std::chrono::milliseconds patience)
        : m_folder(folder), m_limits(patience)
    {}
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;
    virtual ~Canvas() = default;

    bool load(const QByteArray &html, QSize viewport);
    bool layOut(QSize viewport);
    void draw(QPainter &painter, QPoint origin, const QRect &area);
    [[nodiscard]] const litehtml::document &document() const { return *m_document; }
    [[nodiscard]] Element root() const { return m_document->root(); }

    litehtml::uint_ptr create_font(const tchar_t *families, int size, int weight,
                                   litehtml::font_style style, unsigned int decoration,
                                   litehtml::font_metrics *metrics) override;
    void delete_font(litehtml::uint_ptr font) override;
    int text_width(const tchar_t *text, litehtml::uint_ptr font) override;
    void draw_text(litehtml::uint_ptr device, const tchar_t *text, litehtml::uint_ptr font,
                   litehtml::web_color color, const litehtml::position &place) override;
    int pt_to_px(int pt) const override;
    int get_default_font_size() const override { return DefaultFontSize; }
    const tchar_t *get_default_font_name() const override { return "sans-serif"; }
    void draw_list_marker(litehtml::uint_ptr device, const litehtml::list_marker &marker) override;
    void load_image(const tchar_t *link, const tchar_t *base, bool redraw) override;
    void get_image_size(const tchar_t *link, const tchar_t *base, litehtml::size &size) override;
    void draw_background(litehtml::uint_ptr device, const litehtml::background_paint &bg) override;
    void draw_borders(litehtml::uint_ptr device, const litehtml::borders &borders,
                      const litehtml::position &place, bool root) override;
    void set_caption(const tchar_t * /*caption*/) override {}
    void set_base_url(const tchar_t * /*base*/) override {}
    void link(const Document & /*document*/, const Element & /*element*/) override {}
    void on_anchor_click(const tchar_t * /*address*/, const Element & /*element*/) override {}
    void set_cursor(const tchar_t * /*cursor*/) override {}
    void transform_text(tstring &text, litehtml::text_transform transform) override;
    void import_css(tstring &text, const tstring &link, tstring &base) override;
    void set_clip(const litehtml::position &place, const litehtml::border_radiuses &radii,
                  bool hasX, bool hasY) override;
    void del_clip() override;
    void get_client_rect(litehtml::position &client) const override;
    Element create_element(const tchar_t *tag, const litehtml::string_map &attributes,
                           const Document &document) override;
    void get_media_features(litehtml::media_features &media) const override;
    void get_language(tstring &language, tstring &culture) const override;
    void split_text(const char *text, const std::function<void(const tchar_t *)> &onWord,
                    const std::function<void(const tchar_t *)> &onSpace) override;

private:
    class Picture;

    struct Font
    {
        QFont font;
        QFontMetrics metrics;
    };

    // The library keeps a font as a number; 0 is none.
    [[nodiscard]] const Font &fontAt(litehtml::uint_ptr number) const
    {
        return m_fonts.at(std::max<std::size_t>(number, 1) - 1);
    }
    [[nodiscard]] static QSize placeholderSize(const QString &text);
    void drawPlaceholder(const QRect &box, const QString &text);
    void drawPicture(const litehtml::background_paint &bg, const QRect &box);

    HtmlFolder m_folder;
    Limits m_limits;
    litehtml::context m_context;
    QSize m_viewport;
    QPainter *m_painter = nullptr;
    std::vector<Font> m_fonts;
    QHash<QString, QString> m_alternatives; // what stands for a picture that cannot be shown
    Document m_document;
};

namespace {

QString textOf(const tchar_t *text)
{
    return text ? QString::fromUtf8(text) : QString();
}

// Of HTML; a space that does not break the line is none.
bool isBlank(QChar c)
{
    return u" \t\n\r\f"_s.contains(c);
}

bool isIdeograph(QChar c)
{
    return c >= u'\u2E80' && c <= u'\u9FFF';
}

QFont placeholderFont()
{
    return fontOf(u"sans-serif"_s, 13, QFont::Normal, false);
}

} // namespace

// A picture that cannot be shown leaves a frame with its text.
class HtmlPage::Canvas::Picture final : public Guarded<litehtml::el_image>
{
public:
    Picture(const Document &document, Limits &limits, Canvas &canvas)
        : Guarded(document, limits), m_canvas(canvas)
    {}

    void parse_attributes() override
    {
        m_canvas.m_alternatives.insert(textOf(get_attr("src", "")),
                                       textOf(get_attr("alt", "")).simplified());
        Guarded::parse_attributes();
    }

private:
    Canvas &m_canvas;
};

bool HtmlPage::Canvas::load(const QByteArray &html, QSize viewport)
{
    m_viewport = viewport;
    m_limits.begin();
    m_context.load_master_stylesheet(HtmlStyle);
    m_document = litehtml::document::createFromUTF8(html.constData(), this, &m_context);
    if (!m_limits.wasEnough())
        return false;
    m_document->render(viewport.width());
    return m_limits.wasEnough();
}

bool HtmlPage::Canvas::layOut(QSize viewport)
{
    m_viewport = viewport;
    m_limits.begin();
    m_document->media_changed();
    m_document->render(viewport.width());
    return m_limits.wasEnough();
}

void HtmlPage::Canvas::draw(QPainter &painter, QPoint origin, const QRect &area)
{
    m_painter = &painter;
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const litehtml::position clip(area.x(), area.y(), area.width(), area.height());
    m_document->draw(0, origin.x(), origin.y(), &clip);
    painter.restore();
    m_painter = nullptr;
}

litehtml::uint_ptr HtmlPage::Canvas::create_font(const tchar_t *families, int size, int weight,
                                                 litehtml::font_style style,
                                                 unsigned int decoration,
                                                 litehtml::font_metrics *metrics)
{
    const bool isItalic = style == litehtml::fontStyleItalic;
    QFont font = fontOf(textOf(families), size, weight, isItalic);
    font.setUnderline((decoration & litehtml::font_decoration_underline) != 0);
    font.setStrikeOut((decoration & litehtml::font_decoration_linethrough) != 0);
    font.setOverline((decoration & litehtml::font_decoration_overline) != 0);
    const QFontMetrics measured(font);
    metrics->ascent = measured.ascent();
    metrics->descent = measured.descent();
    metrics->height = measured.height();
    metrics->x_height = measured.xHeight();
    metrics->draw_spaces = isItalic || decoration != 0;
    m_fonts.push_back({font, measured});
    return m_fonts.size();
}

void HtmlPage::Canvas::delete_font(litehtml::uint_ptr /*font*/)
{
    // The fonts live as long as the page.
}

int HtmlPage::Canvas::text_width(const tchar_t *text, litehtml::uint_ptr font)
{
    return fontAt(font).metrics.horizontalAdvance(textOf(text));
}

void HtmlPage::Canvas::draw_text(litehtml::uint_ptr /*device*/, const tchar_t *text,
                                 litehtml::uint_ptr font, litehtml::web_color color,
                                 const litehtml::position &place)
{
    m_painter->setFont(fontAt(font).font);
    m_painter->setPen(colorOf(color));
    // The number of a list's item gets a box as high as the line.
    const QFontMetrics &metrics = fontAt(font).metrics;
    const int top = place.y + (place.height - metrics.height() + 1) / 2;
    m_painter->drawText(place.x, top + metrics.ascent(), textOf(text));
}

int HtmlPage::Canvas::pt_to_px(int pt) const
{
    return qRound(pt * 96 / 72.0);
}

void HtmlPage::Canvas::draw_list_marker(litehtml::uint_ptr /*device*/,
                                        const litehtml::list_marker &marker)
{
    const QRect box = rectOf(marker.pos);
    if (!marker.image.empty()) {
        const auto picture =
            m_folder.picture(QString::fromStdString(marker.image), textOf(marker.baseurl));
        m_painter->drawPixmap(box, picture.pixmap);
        return;
    }
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing);
    const QColor color = colorOf(marker.color);
    switch (marker.marker_type) {
    case litehtml::list_style_type_square:
        m_painter->fillRect(box, color);
        break;
    case litehtml::list_style_type_circle:
        m_painter->setPen(color);
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawEllipse(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
        break;
    default:
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(color);
        m_painter->drawEllipse(box);
        break;
    }
    m_painter->restore();
}

void HtmlPage::Canvas::load_image(const tchar_t * /*link*/, const tchar_t * /*base*/,
                                  bool /*redraw*/)
{
    // It is loaded when its size is asked for.
}

void HtmlPage::Canvas::get_image_size(const tchar_t *link, const tchar_t *base,
                                      litehtml::size &size)
{
    QElapsedTimer timer;
    timer.start();
    QSize found = m_folder.picture(textOf(link), textOf(base)).size;
    m_limits.prolong(timer.elapsed()); // pictures have a limit of their own
    const auto alternative = m_alternatives.constFind(textOf(link));
    if (found.isEmpty() && alternative != m_alternatives.constEnd())
        found = placeholderSize(*alternative);
    size.width = found.width();
    size.height = found.height();
}

void HtmlPage::Canvas::draw_background(litehtml::uint_ptr /*device*/,
                                       const litehtml::background_paint &bg)
{
    const QRect box =
        bg.is_root ? m_painter->clipBoundingRect().toAlignedRect() : rectOf(bg.clip_box);
    m_painter->save();
    const Corners corners = cornersOf(bg.border_radius);
    if (!corners.areSquare()) {
        m_painter->setRenderHint(QPainter::Antialiasing);
        m_painter->setClipPath(outlineOf(box, corners), Qt::IntersectClip);
    }
    if (bg.color.alpha != 0)
        m_painter->fillRect(box, colorOf(bg.color));
    if (!bg.image.empty())
        drawPicture(bg, box);
    m_painter->restore();
}

QSize HtmlPage::Canvas::placeholderSize(const QString &text)
{
    constexpr int Margin = 4;
    if (text.isEmpty())
        return {};
    const QFontMetrics metrics(placeholderFont());
    return {metrics.horizontalAdvance(text) + 2 * Margin + 2, metrics.height() + 2 * Margin};
}

void HtmlPage::Canvas::drawPlaceholder(const QRect &box, const QString &text)
{
    constexpr int Margin = 4;
    const QRect inner = box.adjusted(Margin, Margin, -Margin, -Margin);
    // What a message uses to see whether it is read is one dot.
    if (inner.isEmpty())
        return;
    m_painter->setPen(QColor(0x80, 0x80, 0x80));
    m_painter->setBrush(Qt::NoBrush);
    m_painter->drawRect(box.adjusted(0, 0, -1, -1));
    m_painter->setFont(placeholderFont());
    m_painter->setPen(QColor(0x50, 0x50, 0x50));
    m_painter->drawText(inner, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
}

void HtmlPage::Canvas::drawPicture(const litehtml::background_paint &bg, const QRect &box)
{
    const QString link = QString::fromStdString(bg.image);
    const QPixmap pixmap = m_folder.picture(link, QString::fromStdString(bg.baseurl)).pixmap;
    const QRect first(bg.position_x, bg.position_y, bg.image_size.width, bg.image_size.height);
    if (pixmap.isNull()) {
        const auto alternative = m_alternatives.constFind(link);
        if (alternative != m_alternatives.constEnd())
            drawPlaceholder(first, *alternative);
        return;
    }
    QRect area = box;
    switch (bg.repeat) {
    case litehtml::background_repeat_no_repeat:
        area &= first;
        break;
    case litehtml::background_repeat_repeat_x:
        area &= QRect(box.x(), first.y(), box.width(), first.height());
        break;
    case litehtml::background_repeat_repeat_y:
        area &= QRect(first.x(), box.y(), first.width(), box.height());
        break;
    case litehtml::background_repeat_repeat:
        break;
    }
    if (area == first)
        m_painter->drawPixmap(first, pixmap);
    else
        drawTiles(*m_painter, area, pixmap, first);
}

void HtmlPage::Canvas::draw_borders(litehtml::uint_ptr /*device*/, const litehtml::borders &borders,
                                    const litehtml::position &place, bool /*root*/)
{
    drawBorders(
        *m_painter, rectOf(place),
        {lineOf(borders.top), lineOf(borders.right), lineOf(borders.bottom), lineOf(borders.left)},
        cornersOf(borders.radius));
}

void HtmlPage::Canvas::transform_text(tstring &text, litehtml::text_transform transform)
{
    QString changed = QString::fromStdString(text);
    switch (transform) {
    case litehtml::text_transform_uppercase:
        changed = changed.toUpper();
        break;
    case litehtml::text_transform_lowercase:
        changed = changed.toLower();
        break;
    case litehtml::text_transform_capitalize:
        if (!changed.isEmpty())
            changed.front() = changed.front().toUpper();
        break;
    case litehtml::text_transform_none:
        break;
    }
    text = changed.toStdString();
}

void HtmlPage::Canvas::import_css(tstring &text, const tstring &link, tstring &base)
{
    const QString name = QString::fromStdString(link);
    const QByteArray content = m_folder.styleSheet(name, QString::fromStdString(base));
    text = ordinaryStyleSheet(QString::fromUtf8(content).toStdString());
    // Links in the style sheet count from its own folder.
    base += link.substr(0, link.find_last_of("/\\") + 1);
}

void HtmlPage::Canvas::set_clip(const litehtml::position &place,
                                const litehtml::border_radiuses &radii, bool hasX, bool hasY)
{
    QRect box = rectOf(place);
    const QRect all = m_painter->clipBoundingRect().toAlignedRect();
    if (!hasX)
        box = QRect(all.x(), box.y(), all.width(), box.height());
    if (!hasY)
        box = QRect(box.x(), all.y(), box.width(), all.height());
    m_painter->save();
    const Corners corners = cornersOf(radii);
    if (corners.areSquare())
        m_painter->setClipRect(box, Qt::IntersectClip);
    else
        m_painter->setClipPath(outlineOf(box, corners), Qt::IntersectClip);
}

void HtmlPage::Canvas::del_clip()
{
    m_painter->restore();
}

void HtmlPage::Canvas::get_client_rect(litehtml::position &client) const
{
    client = litehtml::position(0, 0, m_viewport.width(), m_viewport.height());
}

Element HtmlPage::Canvas::create_element(const tchar_t *tag,
                                         const litehtml::string_map & /*attributes*/,
                                         const Document &document)
{
    const auto make = [&]<typename Kind>(std::type_identity<Kind>) -> Element {
        return std::make_shared<Kind>(document, m_limits);
    };
    const auto guarded = [&]<typename Base>(std::type_identity<Base>) {
        return make(std::type_identity<Guarded<Base>>());
    };
    const std::string_view name(tag);
    if (name == "br" || name == "link" || name == "title" || name == "base" || name == "script")
        return nullptr; // the library's own
    if (name == "style")
        return std::make_shared<Style>(document);
    if (name == "img")
        return std::make_shared<Picture>(document, m_limits, *this);
    if (name == "td" || name == "th")
        return make(std::type_identity<Cell>());
    if (name == "body")
        return make(std::type_identity<Body>());
    if (name == "ol")
        return make(std::type_identity<NumberedList>());
    if (name == "p")
        return guarded(std::type_identity<litehtml::el_para>());
    if (name == "table")
        return make(std::type_identity<Table>());
    if (name == "tr")
        return guarded(std::type_identity<litehtml::el_tr>());
    if (name == "a")
        return guarded(std::type_identity<litehtml::el_anchor>());
    if (name == "div")
        return guarded(std::type_identity<litehtml::el_div>());
    if (name == "font")
        return guarded(std::type_identity<litehtml::el_font>());
    return guarded(std::type_identity<litehtml::html_tag>());
}

void HtmlPage::Canvas::get_media_features(litehtml::media_features &media) const
{
    media.type = litehtml::media_type_screen;
    media.width = m_viewport.width();
    media.height = m_viewport.height();
    media.device_width = media.width;
    media.device_height = media.height;
    media.color = 8;
    media.resolution = 96;
}

void HtmlPage::Canvas::get_language(tstring &language, tstring &culture) const
{
    const QString name = QLocale().name();
    language = name.section(u'_', 0, 0).toStdString();
    culture = QString(name).replace(u'_', u'-').toStdString();
}

// Between ideographs, and in words that no line could hold, a line may end too.
void HtmlPage::Canvas::split_text(const char *text,
                                  const std::function<void(const tchar_t *)> &onWord,
                                  const std::function<void(const tchar_t *)> &onSpace)
{
    constexpr qsizetype MaxWord = 100;
    const QString whole = QString::fromUtf8(text);
    QStringView rest(whole);
    while (!rest.isEmpty()) {
        if (isBlank(rest.front())) {
            onSpace(rest.first(1).toUtf8().constData());
            rest = rest.sliced(1);
            continue;
        }
        qsizetype length = 1;
        while (length < std::min(rest.size(), MaxWord) && !isBlank(rest[length]) &&
               !isIdeograph(rest[length - 1]) && !isIdeograph(rest[length]))
            ++length;
        if (rest[length - 1].isHighSurrogate() && length < rest.size())
            ++length;
        onWord(rest.first(length).toUtf8().constData());
        rest = rest.sliced(length);
    }
}

namespace {

// Collects what elements say, a line for each block.
class TextLines
{
public:
    void add(litehtml::element &element);
    [[nodiscard]] QString take()
    {
        endLine();
        return m_text.trimmed();
    }

private:
    void endLine();

    QString m_text;
    QString m_line;
};

// Lines that hold nothing are left out.
void TextLines::endLine()
{
    while (m_line.endsWith(u' ') || m_line.endsWith(u'\t'))
        m_line.chop(1);
    if (!m_line.isEmpty())
        m_text += m_line + u'\n';
    m_line.clear();
}

void TextLines::add(litehtml::element &element)
{
    const litehtml::style_display display = element.get_display();
    if (display == litehtml::display_none)
        return;
    if (element.is_break()) {
        endLine();
    } else if (element.is_white_space()) {
        if (!m_line.isEmpty() && !m_line.back().isSpace())
            m_line += u' ';
    } else if (display == litehtml::display_inline_text) {
        tstring text;
        element.get_text(text);
        m_line += QString::fromStdString(text);
    }
    const bool isInLine =
        display == litehtml::display_inline || display == litehtml::display_inline_text ||
        display == litehtml::display_inline_block || display == litehtml::display_inline_table ||
        display == litehtml::display_table_cell;
    if (!isInLine)
        endLine();
    for (int i = 0; i < int(element.get_children_count()); ++i)
        add(*element.get_child(i));
    if (display == litehtml::display_table_cell)
        m_line += u'\t';
    else if (!isInLine)
        endLine();
}

} // namespace

HtmlPage::HtmlPage(const QString &folder, std::chrono::milliseconds patience)
    : m_canvas(std::make_unique<Canvas>(folder, patience))
{}

HtmlPage::~HtmlPage() = default;

std::unique_ptr<HtmlPage> HtmlPage::make(const QString &html, const QString &folder, QSize viewport,
                                         std::chrono::milliseconds patience)
{
    const QByteArray text = html.toUtf8();
    // The library reads it again, and the layout takes longer than the reading.
    if (!isOrdinaryHtml(text, QDeadlineTimer(patience / 3)))
        return nullptr;
    std::unique_ptr<HtmlPage> page(new HtmlPage(folder, patience));
    return page->m_canvas->load(text, viewport) ? std::move(page) : nullptr;
}

bool HtmlPage::layOut(QSize viewport)
{
    return m_canvas->layOut(viewport);
}

QSize HtmlPage::size() const
{
    return {m_canvas->document().width(), m_canvas->document().height()};
}

void HtmlPage::draw(QPainter &painter, QPoint origin, const QRect &area)
{
    m_canvas->draw(painter, origin, area);
}

QString HtmlPage::linkAt(QPoint place) const
{
    Element element =
        m_canvas->root()->get_element_by_point(place.x(), place.y(), place.x(), place.y());
    while (element && std::string_view(element->get_tagName()) != "a")
        element = element->parent();
    return element ? textOf(element->get_attr("href", "")) : QString();
}

QString HtmlPage::plainText() const
{
    TextLines lines;
    lines.add(*m_canvas->root());
    return lines.take();
}
