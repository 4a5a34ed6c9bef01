#pragma once

#include <QMetaType>
#include <QString>

/// The command of the SMTP dialogue that a reply belongs to.
enum class SmtpVerb {
    None,
    Greeting,
    Ehlo,
    Helo,
    StartTls,
    Auth,
    Rset,
    Mail,
    Rcpt,
    Data,
    Bdat,
    Content,
    Quit
};

/// The command's name as administrators know it, as "RCPT"; the content's is "end of DATA". Empty
/// for None.
[[nodiscard]] QString nameOf(SmtpVerb verb);

/// What a server said to one command, as data: nobody has to search a text for a number.
struct ServerReply
{
    SmtpVerb verb = SmtpVerb::None;
    int code = 0;     ///< three digits (RFC 5321, section 4.2); 0 when there was no reply
    QString enhanced; ///< the enhanced status code (RFC 3463), as "5.1.1"; empty when there is none
    QString text;     ///< the server's words, lines joined by one blank, without either code

    [[nodiscard]] bool isPositive() const { return code >= 200 && code < 400; }
    /// A refusal that may be another reply later (4yz).
    [[nodiscard]] bool isForNow() const { return code >= 400 && code < 500; }
    [[nodiscard]] bool isEmpty() const { return code == 0 && text.isEmpty(); }

    /// The reply on one line, as "550 5.1.1 no such user"; only the text when there is no code.
    [[nodiscard]] QString toText() const
    {
        QString whole = code == 0 ? QString() : QString::number(code);
        for (const QString &piece : {enhanced, text}) {
            if (piece.isEmpty())
                continue;
            if (!whole.isEmpty())
                whole += u' ';
            whole += piece;
        }
        return whole;
    }

    bool operator==(const ServerReply &) const = default;
};

Q_DECLARE_METATYPE(ServerReply)
