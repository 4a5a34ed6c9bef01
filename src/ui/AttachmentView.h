#pragma once

#include "message/Attachments.h"

#include <QTreeWidget>

/// The attachments on the screen: a list with one column, "File".
class AttachmentView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit AttachmentView(QWidget *parent = nullptr);

    /// Shows those attachments; called once.
    void setAttachments(const Attachments &attachments);
    /// The place of the selected attachment, from 0; -1 when none is selected.
    [[nodiscard]] int selectedPlace() const;

Q_SIGNALS:
    void addWanted();
    void removeWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void show(const QStringList &paths);
};
