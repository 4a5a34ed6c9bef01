#include "base/ServerReply.h"

QString nameOf(SmtpVerb verb)
{
    switch (verb) {
    case SmtpVerb::None:
        break;
    case SmtpVerb::Greeting:
        return QStringLiteral("connection");
    case SmtpVerb::Ehlo:
        return QStringLiteral("EHLO");
    case SmtpVerb::Helo:
        return QStringLiteral("HELO");
    case SmtpVerb::StartTls:
        return QStringLiteral("STARTTLS");
    case SmtpVerb::Auth:
        return QStringLiteral("AUTH");
    case SmtpVerb::Rset:
        return QStringLiteral("RSET");
    case SmtpVerb::Mail:
        return QStringLiteral("MAIL");
    case SmtpVerb::Rcpt:
        return QStringLiteral("RCPT");
    case SmtpVerb::Data:
        return QStringLiteral("DATA");
    case SmtpVerb::Bdat:
        return QStringLiteral("BDAT");
    case SmtpVerb::Content:
        return QStringLiteral("end of DATA");
    case SmtpVerb::Quit:
        return QStringLiteral("QUIT");
    }
    return {};
}
