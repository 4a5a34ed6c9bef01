#pragma once

#include "base/RegionalFormats.h"
#include "form/Form.h"
#include "message/Attachments.h"
#include "message/MessageReader.h"

/// The label that shows how large the message is: message files, linked files and attachments as
/// they lie on the disk, before any encoding. A file that cannot be opened counts -1.
class MessageSize
{
public:
    MessageSize(Form &form, const Attachments &attachments, const MessageReader &reader,
                Prompts &prompts, const RegionalFormats &formats);

    /// Recomputes the label; reads the HTML file, and so writes its line to the log. False when the
    /// size cannot be told (a link without its closing quote, more than 2 GiB): a box says so, the
    /// label stays, and the command that asked ends there.
    bool UpdateMessageSize();

private:
    class ByteCount;

    /// False when a link has no closing quote.
    bool addLinkedFiles(const QString &htmlPath, ByteCount &size) const;
    bool reportFailure(const QString &reason);

    Form &m_form;
    const Attachments &m_attachments;
    const MessageReader &m_reader;
    Prompts &m_prompts;
    const RegionalFormats &m_formats;
};

/// A number of bytes in KB, two decimals to the nearest hundredth; never a minus sign for zero.
[[nodiscard]] QString sizeText(qint64 bytes, QChar decimalSign);
