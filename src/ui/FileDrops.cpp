#include "ui/FileDrops.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

// The dropped files; none when something else is among them.
QStringList filesOf(const QDropEvent &event)
{
    QStringList paths;
    for (const QUrl &url : event.mimeData()->urls()) {
        if (!url.isLocalFile() || !QFileInfo(url.toLocalFile()).isFile())
            return {};
        paths.append(QDir::toNativeSeparators(url.toLocalFile()));
    }
    return paths;
}

} // namespace

FileDrops::FileDrops(QWidget &target, Accepts accepts, Takes takes)
    : QObject(&target), m_accepts(std::move(accepts)), m_takes(std::move(takes))
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto &drop = static_cast<QDropEvent &>(*event);
    const QStringList paths = filesOf(drop);
    if (paths.isEmpty() || !m_accepts(paths)) {
        drop.ignore();
        return true;
    }
    // The files stay where they are, whatever the source would like.
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (isDrop)
        m_takes(paths);
    return true;
}
