#include "ui/AttachmentView.h"

#include "ui/Pictures.h"

#include <QKeyEvent>

AttachmentView::AttachmentView(QWidget *parent) : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderLabel(tr("File"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(SingleSelection);
}

void AttachmentView::setAttachments(const Attachments &attachments)
{
    connect(&attachments, &Attachments::changed, this,
            [this, &attachments] { show(attachments.paths()); });
    connect(&attachments, &Attachments::added, this,
            [this] { setCurrentItem(topLevelItem(topLevelItemCount() - 1)); });
    show(attachments.paths());
}

int AttachmentView::selectedPlace() const
{
    const QList<QTreeWidgetItem *> selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.front());
}

void AttachmentView::show(const QStringList &paths)
{
    clear();
    for (const QString &path : paths) {
        auto *const item = new QTreeWidgetItem(this);
        item->setText(0, Attachments::shownText(path));
        item->setToolTip(0, path);
        item->setIcon(0, Pictures::icon("attachment"));
    }
}

void AttachmentView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete))
        Q_EMIT removeWanted();
    else if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier)
        Q_EMIT addWanted();
    else
        QTreeWidget::keyPressEvent(event);
}
