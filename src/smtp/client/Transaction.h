#pragma once

#include "smtp/client/Extensions.h"
#include "smtp/client/Letter.h"
#include "smtp/client/ReplyReader.h"

#include <QList>

/// What a client writes at once: commands, and behind them a message's content.
struct Outgoing
{
    QByteArray commands;
    QList<QByteArray> content;
};

/// One message in the dialogue: which bytes to write next, which reply belongs to which command,
/// what became of the message. Knows no socket and no clock.
class Transaction
{
public:
    enum class Outcome {
        Open,     ///< not yet known
        Accepted, ///< by the server, for at least one recipient
        Refused,  ///< for every recipient
        NotTaken, ///< certainly not accepted: it can be handed over again
        InDoubt   ///< wholly transferred, and the server did not say whether it accepts
    };

    /// `needsReset`: the server may still hold parts of an earlier message.
    Transaction(const Letter &letter, const Extensions &extensions, bool needsReset);

    /// The bytes to write now; empty while replies have to come first.
    [[nodiscard]] Outgoing takeBytes();
    /// The command whose reply comes next, None when none is due.
    [[nodiscard]] SmtpVerb awaited() const;
    /// The reply to the command in front. False when that command has no such reply: the dialogue
    /// is out of step, and counts as cut.
    [[nodiscard]] bool take(const WireReply &reply);
    /// The connection is gone, or counts as gone. `allWritten`: no byte taken still waits.
    void cut(bool allWritten);

    /// No reply is due any more and nothing is left to write.
    [[nodiscard]] bool isSettled() const { return m_toWrite.isEmpty() && m_awaited.isEmpty(); }
    [[nodiscard]] Outcome outcome() const { return m_outcome; }
    /// What the server, or this client, said to each recipient, by position. Where the outcome is
    /// neither Accepted nor Refused, only refusals that concern one recipient are there.
    [[nodiscard]] QList<ServerReply> replies() const;
    /// Why the session has to end with this message, in plain words: the server said 421, or may
    /// take the message for commands. Empty when it can go on.
    [[nodiscard]] QString reasonToEnd() const;
    /// The reply that refused the message because nobody is logged in; empty when it was anything
    /// else.
    [[nodiscard]] ServerReply loginWish() const { return m_loginWish; }
    [[nodiscard]] const Letter &letter() const { return m_letter; }
    /// The server announced CHUNKING and does not know BDAT.
    [[nodiscard]] bool chunkingFailed() const { return m_chunkingFailed; }

private:
    struct Command
    {
        SmtpVerb verb = SmtpVerb::None;
        qsizetype recipient = -1;
    };

    [[nodiscard]] bool refusedHere();
    void refuseHere(const QString &reason);
    [[nodiscard]] QByteArray commandLine(const Command &command) const;
    [[nodiscard]] QList<QByteArray> content() const;
    void takeEnvelopeReply(const Command &command, const WireReply &reply);
    void takeFinalReply(const Command &command, const WireReply &reply);
    void decide(Outcome outcome);

    const Letter m_letter;
    const Extensions m_extensions;
    const qint64 m_size;
    bool m_needsSmtpUtf8 = false;

    QList<Command> m_toWrite;
    QList<Command> m_awaited; ///< written, their replies still to come
    bool m_contentTaken = false;

    Outcome m_outcome = Outcome::Open;
    ServerReply m_farewell; ///< the server's 421
    ServerReply m_loginWish;
    bool m_chunkingFailed = false;
    bool m_mailAccepted = false;
    qsizetype m_recipientsLeft = 0; ///< RCPT still to be answered
    qsizetype m_recipientsAccepted = 0;
    QList<ServerReply> m_refusals; ///< by position; empty where the recipient is not refused alone
    ServerReply m_verdict;         ///< what holds for all others
};
