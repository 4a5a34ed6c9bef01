#include "ui/LineList.h"

#include "ui/Pictures.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

namespace {

// Ten bytes of a fingerprint, "AB:" each. Longer words may be parted there.
constexpr int LongestPart = 30;
constexpr QChar ZeroWidthSpace(0x200B);

QString breakable(const QString &text)
{
    QString parted;
    int run = 0;
    for (const QChar c : text) {
        run = c.isSpace() ? 0 : run + 1;
        parted += c;
        if (run == LongestPart) {
            parted += ZeroWidthSpace;
            run = 0;
        }
    }
    return parted;
}

} // namespace

LineList::LineList(QWidget *parent) : QListWidget(parent)
{
    setWordWrap(true);
    setResizeMode(Adjust);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(ExtendedSelection);
    auto *const copy = new QAction(tr("Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this,
            [this] { QGuiApplication::clipboard()->setText(selectedText()); });
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void LineList::setLines(const QList<ShownLine> &lines)
{
    while (count() > lines.size())
        delete takeItem(count() - 1);
    for (int row = 0; row < lines.size(); ++row) {
        const ShownLine &line = lines.at(row);
        if (row < count() && line == m_lines.at(row))
            continue;
        delete takeItem(row);
        auto *const entry = new QListWidgetItem(Pictures::icon(line.picture), breakable(line.text));
        entry->setData(Qt::AccessibleTextRole, line.spoken);
        insertItem(row, entry);
    }
    m_lines = lines;
}

QString LineList::selectedText() const
{
    QStringList texts;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->isSelected())
            texts.append(m_lines.at(row).text);
    }
    return texts.join(u'\n');
}
