#include "ui/HtmlPage.h"

#include "ui/HtmlCanvas.h"
#include "ui/HtmlGuards.h"

#include <QDeadlineTimer>
#include <QPainter>

#include <litehtml/litehtml.h>

#include <string_view>

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
        litehtml::tstring text;
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
    : m_canvas(std::make_unique<HtmlCanvas>(folder, patience))
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
    litehtml::element::ptr element =
        m_canvas->root()->get_element_by_point(place.x(), place.y(), place.x(), place.y());
    while (element && std::string_view(element->get_tagName()) != "a")
        element = element->parent();
    return element ? QString::fromUtf8(element->get_attr("href", "")) : QString();
}

QString HtmlPage::plainText() const
{
    TextLines lines;
    lines.add(*m_canvas->root());
    return lines.take();
}
