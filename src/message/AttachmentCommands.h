#pragma once

#include "form/Form.h"
#include "log/CLog.h"
#include "message/Attachments.h"
#include "message/MessageSize.h"
#include "prompts/Prompts.h"

#include <QCoreApplication>

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
