#pragma once

#include "smtp/Smtp.h"
#include "smtp/client/Letter.h"
#include "smtp/client/MimeBody.h"

#include <QStringList>

class Clock;

/// Makes letters of messages. What one message has in common with the one before is kept in its
/// encoded form.
class LetterBuilder
{
public:
    explicit LetterBuilder(const Clock &clock) : m_clock(clock) {}

    /// What the HTML body shows in its text; the files stay from message to message.
    [[nodiscard]] InlineFiles &inlineFiles() { return m_body.inlineFiles; }

    /// The letter, or why the message cannot be sent to anyone, in one line.
    [[nodiscard]] tl::expected<Letter, QString> build(const OutgoingMessage &message,
                                                      const QStringList &attachments);

    /// How many recipients the message names.
    [[nodiscard]] static qsizetype recipientCount(const OutgoingMessage &message);

private:
    /// The values that the constant header lines are made of.
    struct HeaderValues
    {
        QString fromAddress;
        QString fromName;
        QString subject;
        QString mailer;
        QString receiptAddress; ///< empty when no receipt is wanted

        bool operator==(const HeaderValues &) const = default;
    };
    /// The header lines that do not change from message to message.
    struct Header
    {
        HeaderValues values;
        MailAddress sender;
        bool needsSmtpUtf8 = false;
        QByteArray from;
        QByteArray subject;
        QByteArray rest; ///< what follows the caller's own lines
    };

    [[nodiscard]] tl::expected<void, QString> setHeader(const OutgoingMessage &message);
    [[nodiscard]] const QByteArray &dateLine(const QString &dateText);

    const Clock &m_clock;
    Header m_header;
    MimeBody m_body;
    QString m_dateText;
    qint64 m_dateSecond = -1; ///< the second for which m_dateLine holds
    QByteArray m_dateLine;
};
