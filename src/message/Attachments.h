#pragma once

#include "form/Form.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"

#include <QCoreApplication>
#include <QObject>
#include <QStringList>

class MessageSize;

/// The attachments of a project: full paths, in the order of adding; one may stand there twice.
class Attachments : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] const QStringList &paths() const { return m_paths; }
    /// How the list shows a path.
    [[nodiscard]] static QString shownText(const QString &path);

    void replaceAll(const QStringList &paths);
    void add(const QString &path);
    void removeAt(int index);

Q_SIGNALS:
    void changed();

private:
    QStringList m_paths;
};

/// Editing the attachments by hand.
class AttachmentCommands
{
    Q_DECLARE_TR_FUNCTIONS(Attachments)

public:
    AttachmentCommands(Form &form, Attachments &attachments, MessageSize &size, Prompts &prompts,
                       CLog &AppLog);

    void cmdAggiungi_Click();
    /// Removes the selected attachment; -1 when none is.
    void cmdRimuovi_Click(int selected);
    /// Adds a file as cmdAggiungi does when it was chosen.
    void attach(const QString &path);

private:
    Form &m_form;
    Attachments &m_attachments;
    MessageSize &m_size;
    Prompts &m_prompts;
    CLog &m_AppLog;
};
