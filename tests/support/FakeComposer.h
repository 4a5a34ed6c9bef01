#pragma once

#include "smtp/MessageComposer.h"
#include "support/FakeSmtp.h"

/// Composes what the client in memory was told into a message that tests can read: a line for the
/// recipient, one for the subject, and the text.
class FakeComposer : public MessageComposer
{
public:
    explicit FakeComposer(FakeSmtp &client) : m_client(client) {}

    int count = 0;         ///< how often it composed
    QString failure;       ///< when not empty, why no message can be built
    qsizetype padding = 0; ///< bytes more than there are

    [[nodiscard]] tl::expected<QByteArray, QString> compose() override
    {
        ++count;
        m_client.attachments.clear();
        if (!failure.isEmpty())
            return tl::unexpected(failure);
        const QString message =
            QStringLiteral("To: %1\r\nSubject: %2\r\n\r\n%3")
                .arg(m_client.RecipientAddress, m_client.Subject, m_client.TextBody);
        return message.toUtf8() + QByteArray(padding, '.');
    }

private:
    FakeSmtp &m_client;
};
