#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <chrono>
#include <memory>

class HtmlCanvas;
class QPainter;

/// An HTML text laid out as a page. No script runs, and nothing but the pictures and style sheets
/// in the folder of the text is read.
class HtmlPage
{
public:
    /// Lays an HTML text out for a viewport of that size. Null when the text is none that anybody
    /// would write for a message: laying it out takes longer than that, or more than the stack
    /// holds.
    [[nodiscard]] static std::unique_ptr<HtmlPage> make(const QString &html, const QString &folder,
                                                        QSize viewport,
                                                        std::chrono::milliseconds patience);
    HtmlPage(const HtmlPage &) = delete;
    HtmlPage &operator=(const HtmlPage &) = delete;
    ~HtmlPage();

    /// Lays the page out again. False when it takes too long; the page is of no use then.
    [[nodiscard]] bool layOut(QSize viewport);
    /// The size it takes, which may be larger than the viewport.
    [[nodiscard]] QSize size() const;
    /// Draws the part of the page that falls into an area, with the page's corner at `origin`.
    void draw(QPainter &painter, QPoint origin, const QRect &area);
    /// The address of the link at a place of the page; empty when there is none.
    [[nodiscard]] QString linkAt(QPoint place) const;
    /// What the page says, line by line.
    [[nodiscard]] QString plainText() const;

private:
    HtmlPage(const QString &folder, std::chrono::milliseconds patience);

    std::unique_ptr<HtmlCanvas> m_canvas;
};
