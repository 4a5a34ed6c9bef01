#pragma once

#include <QAbstractScrollArea>
#include <QFont>
#include <QString>

#include <chrono>
#include <memory>
#include <vector>

class HtmlPage;

/// Shows an HTML text as mail programs do, black on white whatever the desktop's colours are.
/// Nothing is fetched from the network, no script runs, and links lead nowhere. A text that is too
/// much to be laid out is shown as it is written, under a line that says so.
class HtmlView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit HtmlView(QWidget *parent = nullptr);
    ~HtmlView() override;

    /// Shows a text from the beginning. Pictures and style sheets are looked for in the folder.
    void setHtml(const QString &html, const QString &folder);
    /// How long a text may take to be laid out, which nobody waits for gladly.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    /// What is to be read, a line for each block.
    [[nodiscard]] QString plainText() const;
    /// Whether the text is laid out, and not shown as it is written.
    [[nodiscard]] bool isLaidOut() const { return m_page != nullptr; }

    /// The address of the link at a place of the viewport; empty when there is none.
    [[nodiscard]] QString linkAt(QPoint place) const;

public Q_SLOTS:
    /// Puts the whole text into the clipboard.
    void copy() const;

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] static QString note();
    void breakLines();
    void paintLines(QPainter &painter, const QRect &area) const;
    void setContentSize(QSize size);
    [[nodiscard]] QPoint offset() const;

    std::unique_ptr<HtmlPage> m_page;
    std::chrono::milliseconds m_patience{800};
    QString m_html;
    QFont m_lineFont;
    std::vector<QStringView> m_lines; // of m_html, when there is no page
};
