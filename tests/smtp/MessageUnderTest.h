#pragma once

#include "smtp/MimeReader.h"
#include "smtp/client/LetterBuilder.h"
#include "support/FakeTime.h"

/// A builder and a message to change.
struct MessageUnderTest
{
    FakeClock clock;
    LetterBuilder builder{clock};
    OutgoingMessage message;
    QStringList attachments;
    QStringList problems; ///< of the last message read

    MessageUnderTest()
    {
        message.RecipientAddress = QStringLiteral("anna@example.net");
        message.FromAddress = QStringLiteral("sender@example.org");
        message.FromName = QStringLiteral("Sender");
        message.Subject = QStringLiteral("Greetings");
        message.Mailer = QStringLiteral("Sorvanta");
        message.DateText = QStringLiteral("Sat, 21 Nov 2026 09:00:00");
        message.ExtraHeaders = QStringLiteral("Message-ID: <1@pc>\r\n");
        message.TextBody = QStringLiteral("Hello\r\n");
    }

    QByteArray bytes()
    {
        const auto letter = builder.build(message, attachments);
        return letter ? letter->content.toByteArray() : "not built: " + letter.error().toUtf8();
    }

    ReadPart read()
    {
        problems.clear();
        return readMessage(bytes(), problems);
    }
};
