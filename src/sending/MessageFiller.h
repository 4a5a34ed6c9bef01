#pragma once

#include "base/Clock.h"
#include "form/Form.h"
#include "message/Attachments.h"
#include "message/MessageBodies.h"
#include "sending/MomentTexts.h"
#include "smtp/Smtp.h"

#include <QStringList>

/// Who one message goes to.
struct Addressees
{
    QStringList addresses; ///< more than one only in a group
    QString name;          ///< what the bodies say in the place of the name
    bool isGroup = false;  ///< sent as a list, also when it has one address
};

/// What a message is made of: fills the properties of a client from the form. Everything that
/// sends or shows a message goes through the same one, so that no identifier comes twice.
class MessageFiller
{
public:
    MessageFiller(const Form &form, const Attachments &attachments, const Clock &clock,
                  const QString &computerName);

    /// Writes the properties that the message needs, and adds the attachments. What it does not
    /// need stays as the client's Reset left it: the HTML body, the wish for a receipt, the mark of
    /// a group. Returns the message's identifier.
    QString fill(Smtp &SMTP, const MessageBodies &bodies, const Addressees &to);

private:
    const Form &m_form;
    const Attachments &m_attachments;
    MomentTexts m_moment;
};
