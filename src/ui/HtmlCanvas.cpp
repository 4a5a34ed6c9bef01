#include "ui/HtmlCanvas.h"

#include "ui/HtmlGuards.h"
#include "ui/HtmlPainting.h"
#include "ui/HtmlStyle.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

using litehtml::tchar_t;

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

bool HtmlCanvas::load(const QByteArray &html, QSize viewport)
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

bool HtmlCanvas::layOut(QSize viewport)
{
    m_viewport = viewport;
    m_limits.begin();
    m_document->media_changed();
    m_document->render(viewport.width());
    return m_limits.wasEnough();
}

void HtmlCanvas::draw(QPainter &painter, QPoint origin, const QRect &area)
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

litehtml::uint_ptr HtmlCanvas::create_font(const tchar_t *families, int size, int weight,
                                           litehtml::font_style style, unsigned int decoration,
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

void HtmlCanvas::delete_font(litehtml::uint_ptr /*font*/)
{
    // The fonts live as long as the page.
}

int HtmlCanvas::text_width(const tchar_t *text, litehtml::uint_ptr font)
{
    return fontAt(font).metrics.horizontalAdvance(textOf(text));
}

void HtmlCanvas::draw_text(litehtml::uint_ptr /*device*/, const tchar_t *text,
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

int HtmlCanvas::pt_to_px(int pt) const
{
    return qRound(pt * 96 / 72.0);
}

void HtmlCanvas::draw_list_marker(litehtml::uint_ptr /*device*/,
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

void HtmlCanvas::load_image(const tchar_t * /*link*/, const tchar_t * /*base*/, bool /*redraw*/)
{
    // It is loaded when its size is asked for.
}

void HtmlCanvas::get_image_size(const tchar_t *link, const tchar_t *base, litehtml::size &size)
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

void HtmlCanvas::draw_background(litehtml::uint_ptr /*device*/,
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

QSize HtmlCanvas::placeholderSize(const QString &text)
{
    constexpr int Margin = 4;
    if (text.isEmpty())
        return {};
    const QFontMetrics metrics(placeholderFont());
    return {metrics.horizontalAdvance(text) + 2 * Margin + 2, metrics.height() + 2 * Margin};
}

void HtmlCanvas::drawPlaceholder(const QRect &box, const QString &text)
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

void HtmlCanvas::drawPicture(const litehtml::background_paint &bg, const QRect &box)
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

void HtmlCanvas::draw_borders(litehtml::uint_ptr /*device*/, const litehtml::borders &borders,
                              const litehtml::position &place, bool /*root*/)
{
    drawBorders(
        *m_painter, rectOf(place),
        {lineOf(borders.top), lineOf(borders.right), lineOf(borders.bottom), lineOf(borders.left)},
        cornersOf(borders.radius));
}

void HtmlCanvas::transform_text(tstring &text, litehtml::text_transform transform)
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

void HtmlCanvas::import_css(tstring &text, const tstring &link, tstring &base)
{
    const QString name = QString::fromStdString(link);
    const QByteArray content = m_folder.styleSheet(name, QString::fromStdString(base));
    text = ordinaryStyleSheet(QString::fromUtf8(content).toStdString());
    // Links in the style sheet count from its own folder.
    base += link.substr(0, link.find_last_of("/\\") + 1);
}

void HtmlCanvas::set_clip(const litehtml::position &place, const litehtml::border_radiuses &radii,
                          bool hasX, bool hasY)
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

void HtmlCanvas::del_clip()
{
    m_painter->restore();
}

void HtmlCanvas::get_client_rect(litehtml::position &client) const
{
    client = litehtml::position(0, 0, m_viewport.width(), m_viewport.height());
}

void HtmlCanvas::get_media_features(litehtml::media_features &media) const
{
    media.type = litehtml::media_type_screen;
    media.width = m_viewport.width();
    media.height = m_viewport.height();
    media.device_width = media.width;
    media.device_height = media.height;
    media.color = 8;
    media.resolution = 96;
}

void HtmlCanvas::get_language(tstring &language, tstring &culture) const
{
    const QString name = QLocale().name();
    language = name.section(u'_', 0, 0).toStdString();
    culture = QString(name).replace(u'_', u'-').toStdString();
}

// Between ideographs, and in words that no line could hold, a line may end too.
void HtmlCanvas::split_text(const char *text, const std::function<void(const tchar_t *)> &onWord,
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
