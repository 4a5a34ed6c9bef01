#include "ui/HtmlView.h"

#include "base/Lines.h"
#include "ui/HtmlPage.h"

#include <QAction>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int LineMargin = 8;
constexpr int Step = 40; // of the scroll bars

} // namespace

HtmlView::HtmlView(QWidget *parent)
    : QAbstractScrollArea(parent), m_lineFont(QFontDatabase::systemFont(QFontDatabase::FixedFont))
{
    setFocusPolicy(Qt::StrongFocus);
    // A bar that comes and goes would change the width, and with it the height.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setBackgroundRole(QPalette::NoRole);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    auto *copyAction = new QAction(tr("Copy as text"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copyAction, &QAction::triggered, this, &HtmlView::copy);
    addAction(copyAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

HtmlView::~HtmlView() = default;

void HtmlView::setHtml(const QString &html, const QString &folder)
{
    m_page.reset();
    m_html = html;
    m_page = HtmlPage::make(html, folder, viewport()->size(), m_patience);
    if (m_page)
        setContentSize(m_page->size());
    else
        breakLines();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    setAccessibleDescription(plainText());
    viewport()->update();
}

QString HtmlView::plainText() const
{
    return m_page ? m_page->plainText() : m_html;
}

void HtmlView::copy() const
{
    QGuiApplication::clipboard()->setText(plainText());
}

QString HtmlView::note()
{
    return tr("This text cannot be laid out. It is shown as it is written:");
}

// What is left when a text is too much for a page: its own lines, as long as the window is wide.
void HtmlView::breakLines()
{
    m_page.reset();
    m_lines.clear();
    const QFontMetricsF metrics(m_lineFont);
    const int room = viewport()->width() - 2 * LineMargin;
    const auto columns =
        std::max<qsizetype>(20, qsizetype(room / std::max(1.0, metrics.horizontalAdvance(u'm'))));
    LineReader lines(m_html);
    while (auto line = lines.next()) {
        while (line->size() > columns) {
            const bool isInCharacter = line->at(columns).isLowSurrogate();
            const qsizetype length = isInCharacter ? columns - 1 : columns;
            m_lines.push_back(line->first(length));
            line = line->sliced(length);
        }
        m_lines.push_back(*line);
    }
    const auto count = static_cast<int>(std::min<std::size_t>(m_lines.size() + 1, 10'000'000));
    setContentSize(
        {viewport()->width(), count * QFontMetrics(m_lineFont).lineSpacing() + 2 * LineMargin});
}

void HtmlView::setContentSize(QSize size)
{
    const QSize seen = viewport()->size();
    horizontalScrollBar()->setRange(0, size.width() - seen.width());
    horizontalScrollBar()->setPageStep(seen.width());
    horizontalScrollBar()->setSingleStep(Step);
    verticalScrollBar()->setRange(0, size.height() - seen.height());
    verticalScrollBar()->setPageStep(seen.height());
    verticalScrollBar()->setSingleStep(Step);
}

QPoint HtmlView::offset() const
{
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void HtmlView::resizeEvent(QResizeEvent *event)
{
    const bool isSameWidth = event->oldSize().width() == event->size().width();
    if (m_page && (isSameWidth || m_page->layOut(viewport()->size())))
        setContentSize(m_page->size());
    else
        breakLines();
}

void HtmlView::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
}

void HtmlView::keyPressEvent(QKeyEvent *event)
{
    QScrollBar *bar = verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_Home:
        bar->setValue(bar->minimum());
        break;
    case Qt::Key_End:
        bar->setValue(bar->maximum());
        break;
    case Qt::Key_Space:
        bar->triggerAction(event->modifiers().testFlag(Qt::ShiftModifier)
                               ? QAbstractSlider::SliderPageStepSub
                               : QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void HtmlView::mouseMoveEvent(QMouseEvent *event)
{
    const QString link = linkAt(event->position().toPoint());
    if (link == viewport()->toolTip())
        return;
    QToolTip::hideText(); // of the link that was left
    viewport()->setToolTip(link);
}

QString HtmlView::linkAt(QPoint place) const
{
    return m_page ? m_page->linkAt(place + offset()) : QString();
}

void HtmlView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Qt::white);
    if (m_page)
        m_page->draw(painter, -offset(), event->rect());
    else if (!m_lines.empty())
        paintLines(painter, event->rect());
}

void HtmlView::paintLines(QPainter &painter, const QRect &area) const
{
    painter.setFont(m_lineFont);
    const int height = painter.fontMetrics().lineSpacing();
    const int top = LineMargin - offset().y();
    const auto draw = [&](int row, QStringView text) {
        const int baseline = top + row * height + painter.fontMetrics().ascent();
        painter.drawText(LineMargin, baseline, text.toString());
    };
    painter.setPen(Qt::darkRed);
    draw(0, note());
    painter.setPen(Qt::black);
    const int first = std::max(1, (area.top() - top) / height);
    const int last = std::min(static_cast<int>(m_lines.size()), (area.bottom() - top) / height);
    for (int row = first; row <= last; ++row)
        draw(row, m_lines[std::size_t(row) - 1]);
}
