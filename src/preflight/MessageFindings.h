#pragma once

#include "form/Form.h"
#include "message/Attachments.h"
#include "message/MessageReader.h"
#include "preflight/Finding.h"

#include <QList>

/// What the files of the message give away.
struct MessageLook
{
    QList<Finding> findings;
    bool usesNames = false; ///< a body has a place for the recipient's name
};

/// Reads both message files and looks at what they hold; opens each attachment.
[[nodiscard]] MessageLook lookAtMessage(const Form &form, const Attachments &attachments,
                                        const MessageReader &reader);

/// The pictures that stay behind, by the HTML body as the client would send it: what it can take
/// along is no link to a file there any more.
[[nodiscard]] QList<Finding> findingsInPictures(const Form &form, const QString &htmlToSend);
