#pragma once

#include "base/ServerReply.h"
#include "smtp/ServerReport.h"

#include <QList>
#include <QObject>
#include <QString>

/// The properties that one message is made of, written before each Send.
/// They keep their values from one message to the next; Reset empties those it names.
struct OutgoingMessage
{
    bool RecipientList = false; ///< RecipientAddress holds several addresses joined by ","
    QString RecipientAddress;   ///< one address, or several joined by "," with no blanks
    QString ReceiptAddress;     ///< who is to get the return receipt
    QString FromAddress;
    QString FromName;
    QString Subject;
    QString HtmlBody; ///< empty when the message has no HTML part
    QString TextBody;
    QString Mailer;              ///< the text of X-Mailer
    bool RequestReceipt = false; ///< ask for a return receipt
    QString ExtraHeaders;        ///< complete header lines, each ended by CR LF
    QString DateText;            ///< "Sat, 21 Nov 2026 09:00:00"; the client adds the time zone
};

/// The SMTP client as the sending engine sees it. Every operation returns at once and raises no
/// exception; outcomes come back as the three signals, on the caller's thread and never from
/// inside a call.
///
/// What happens to the message in flight (between Send and its result) is part of the contract:
/// - Reset and Disconnect let it finish: its MessageDone comes, then the session is closed. A
///   Connect called meanwhile waits behind it. Apart from that result, no event of a session comes
///   after its Reset or Disconnect.
/// - A message that waits for a login is given up by Disconnect: an SmtpError settles it.
/// - An SmtpError that settles the message leaves a waiting Connect in place; Disconnect drops it.
/// - A session that ends with no message in flight is no error: the ready event is raised, and the
///   next Send connects again.
class Smtp : public QObject, public OutgoingMessage
{
    Q_OBJECT

public:
    /// The code of StatusChanged that says: the session can take the next message.
    static constexpr qint32 Ready = -1008;

    using QObject::QObject;

    qint32 Port = 25;
    QString Server;

    /// 0 while no bytes of a message wait to be transferred.
    [[nodiscard]] virtual qint32 StatusFlag() const = 0;

    /// Brings the client to an idle, unconnected state. Empties RecipientList, RequestReceipt,
    /// ReceiptAddress, both bodies and the attachments, so that nothing of an earlier project can
    /// travel; the inline files stay with every message of the run.
    virtual void Reset() = 0;
    /// Opens a session to Server and Port; StatusChanged(Ready) follows, or SmtpError.
    virtual void Connect() = 0;
    /// Takes an inline file for the HTML body. Returns what the body must say in place of the
    /// link, or an empty text when the file cannot be taken. The first call after a Connect begins
    /// a new set.
    [[nodiscard]] virtual QString AddRelatedFile(const QString &path) = 0;
    /// Adds a file to the attachments of the next message; Send empties the list.
    virtual void AddAttachment(const QString &path) = 0;
    /// Transmits one message to every address of RecipientAddress; MessageDone follows, then
    /// StatusChanged(Ready); or SmtpError. Before the session is ready the message waits for it;
    /// without a session it is an SmtpError; while a message is in flight nothing is done.
    virtual void Send() = 0;
    /// Ends the session and drops a Connect that waits.
    virtual void Disconnect() = 0;

    /// The replies to the recipients of the message just settled, in the order of
    /// RecipientAddress. Readable inside MessageDone and SmtpError only; empty for a client that
    /// keeps none.
    [[nodiscard]] virtual QList<ServerReply> lastReplies() const { return {}; }
    /// Inside SmtpError: whether the server may have accepted the message in flight all the same.
    /// A client that cannot tell says yes.
    [[nodiscard]] virtual bool mayHaveBeenAccepted() const { return true; }
    /// Inside SmtpError: the certificate that the error is about; nothing for every other error.
    [[nodiscard]] virtual std::optional<ServerCertificate> refusedCertificate() const { return {}; }

Q_SIGNALS:
    /// A failure of the session. Description is one line.
    void SmtpError(qint32 Number, const QString &Description);
    /// The message in flight is settled; Sent when the server accepted it for at least one
    /// recipient.
    void MessageDone(bool Sent);
    void StatusChanged(qint32 Code);
    /// The session waits for a login, perhaps for a person who types it; or waits no longer.
    void LoginAwaited(bool waits);
};
