#include "smtp/client/Transaction.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isPositive(const WireReply &reply)
{
    return reply.code / 100 == 2;
}

/// Whether a command can have such a reply at all (RFC 5321, section 4.3.2).
bool fits(SmtpVerb verb, const WireReply &reply)
{
    return verb == SmtpVerb::Data ? reply.code / 100 != 2 : reply.code / 100 != 3;
}

/// RFC 4954, section 6; some servers have the general refusal of a sender instead.
bool asksForLogin(SmtpVerb verb, const WireReply &reply)
{
    return reply.code == 530 || (verb == SmtpVerb::Mail && reply.code == 550 &&
                                 reply.toServerReply(verb).enhanced.startsWith(u"5.7."));
}

} // namespace

Transaction::Transaction(const Letter &letter, const Extensions &extensions, bool needsReset)
    : m_letter(letter), m_extensions(extensions), m_size(letter.content.size())
{
    if (refusedHere())
        return;
    // With pipelining RSET costs no round trip, and the replies of every server are clear after
    // it: some keep the sender of a group in which every RCPT was refused.
    if (extensions.pipelining || needsReset)
        m_toWrite += {SmtpVerb::Rset};
    m_toWrite += {SmtpVerb::Mail};
    for (qsizetype i = 0; i < m_letter.recipients.size(); ++i) {
        if (m_refusals[i].isEmpty())
            m_toWrite += {SmtpVerb::Rcpt, i};
    }
    const bool chunking = extensions.pipelining && extensions.chunking;
    m_toWrite += {chunking ? SmtpVerb::Bdat : SmtpVerb::Data};
}

/// Finds the recipients that this server cannot be given; true when none is left.
bool Transaction::refusedHere()
{
    const auto &recipients = m_letter.recipients;
    m_refusals.resize(recipients.size());
    m_needsSmtpUtf8 = m_letter.sender.needsSmtpUtf8 || m_letter.headersNeedSmtpUtf8;
    if (m_needsSmtpUtf8 && !m_extensions.smtpUtf8) {
        refuseHere(u"the sender's address is not ASCII before its \"@\", and the server does not "
                   u"take such addresses"_s);
        return true;
    }
    if (m_extensions.largestMessage > 0 && m_size > m_extensions.largestMessage) {
        refuseHere(
            u"the message has %1 bytes, and the server takes no more than %2"_s.arg(m_size).arg(
                m_extensions.largestMessage));
        return true;
    }
    for (qsizetype i = 0; i < recipients.size(); ++i) {
        if (!recipients[i]) {
            m_refusals[i].text = recipients[i].error();
        } else if (recipients[i]->needsSmtpUtf8 && !m_extensions.smtpUtf8) {
            m_refusals[i].text = u"the address is not ASCII before its \"@\", and the server does "
                                 u"not take such addresses"_s;
        } else {
            ++m_recipientsLeft;
            m_needsSmtpUtf8 = m_needsSmtpUtf8 || recipients[i]->needsSmtpUtf8;
        }
    }
    if (m_recipientsLeft == 0)
        decide(Outcome::Refused);
    return m_recipientsLeft == 0;
}

void Transaction::refuseHere(const QString &reason)
{
    m_verdict.text = reason;
    decide(Outcome::Refused);
}

/// The first thing that settles the message's fate holds; the commands that are left are not worth
/// writing then.
void Transaction::decide(Outcome outcome)
{
    if (m_outcome == Outcome::Open)
        m_outcome = outcome;
    m_toWrite.clear();
}

QByteArray Transaction::commandLine(const Command &command) const
{
    switch (command.verb) {
    case SmtpVerb::Rset:
        return "RSET\r\n"_qba;
    case SmtpVerb::Mail:
        return "MAIL FROM:<" + m_letter.sender.bytes + '>' +
               (m_extensions.size ? " SIZE=" + QByteArray::number(m_size) : QByteArray()) +
               (m_needsSmtpUtf8 ? " SMTPUTF8\r\n" : "\r\n");
    case SmtpVerb::Rcpt:
        return "RCPT TO:<" + m_letter.recipients[command.recipient]->bytes + ">\r\n";
    case SmtpVerb::Bdat:
        return "BDAT " + QByteArray::number(m_size) + " LAST\r\n";
    case SmtpVerb::Data:
        return "DATA\r\n"_qba;
    default:
        return {};
    }
}

Outgoing Transaction::takeBytes()
{
    Outgoing outgoing;
    bool contentFollows = false;
    while (!m_toWrite.isEmpty() && (m_extensions.pipelining || m_awaited.isEmpty())) {
        const Command command = m_toWrite.takeFirst();
        m_awaited += command;
        outgoing.commands += commandLine(command);
        contentFollows = command.verb == SmtpVerb::Bdat || command.verb == SmtpVerb::Content;
    }
    if (contentFollows) {
        m_contentTaken = true;
        outgoing.content = content();
    }
    return outgoing;
}

QList<QByteArray> Transaction::content() const
{
    QList<QByteArray> pieces;
    const bool isData = m_awaited.constLast().verb == SmtpVerb::Content;
    // RFC 2920, section 3.1: a server may say 354 although it refused every recipient; the message
    // ends without a line then.
    if (m_outcome == Outcome::Open) {
        for (const Segment &segment : m_letter.content.segments)
            pieces += isData ? segment.stuffed() : segment.lines;
    }
    if (isData)
        pieces += ".\r\n"_qba;
    return pieces;
}

SmtpVerb Transaction::awaited() const
{
    return m_awaited.isEmpty() ? SmtpVerb::None : m_awaited.constFirst().verb;
}

bool Transaction::take(const WireReply &reply)
{
    const Command command = m_awaited.takeFirst();
    if (!fits(command.verb, reply))
        return false;
    if (reply.code == 421)
        m_farewell = reply.toServerReply(command.verb);
    if (command.verb == SmtpVerb::Bdat || command.verb == SmtpVerb::Content)
        takeFinalReply(command, reply);
    else
        takeEnvelopeReply(command, reply);
    return true;
}

void Transaction::takeEnvelopeReply(const Command &command, const WireReply &reply)
{
    const bool positive = isPositive(reply);
    if (asksForLogin(command.verb, reply) && m_loginWish.isEmpty())
        m_loginWish = reply.toServerReply(command.verb);
    if (command.verb == SmtpVerb::Rcpt) {
        --m_recipientsLeft;
        if (positive)
            ++m_recipientsAccepted;
        else if (m_mailAccepted)
            m_refusals[command.recipient] = reply.toServerReply(SmtpVerb::Rcpt);
    }
    // The server is about to close. What was written may still be answered, also with an
    // acceptance, but nothing more is written.
    if (reply.code == 421)
        decide(Outcome::NotTaken);

    if (command.verb == SmtpVerb::Mail) {
        m_mailAccepted = positive;
        if (!positive) {
            m_verdict = reply.toServerReply(SmtpVerb::Mail);
            decide(Outcome::Refused);
        }
    } else if (command.verb == SmtpVerb::Rcpt && m_recipientsLeft == 0 &&
               m_recipientsAccepted == 0) {
        decide(Outcome::Refused);
    } else if (command.verb == SmtpVerb::Data) {
        if (reply.code / 100 != 3) {
            if (m_outcome == Outcome::Open)
                m_verdict = reply.toServerReply(SmtpVerb::Data);
            decide(Outcome::Refused);
        } else if (m_farewell.isEmpty()) {
            m_toWrite += {SmtpVerb::Content};
        }
    }
}

void Transaction::takeFinalReply(const Command &command, const WireReply &reply)
{
    if (isPositive(reply) && m_recipientsAccepted > 0) {
        m_outcome = Outcome::Accepted; // also after a 421 to one of the recipients
        m_verdict = reply.toServerReply(command.verb);
        return;
    }
    // A server that does not know BDAT reads the message as commands. 503 is also the right answer
    // when no recipient was accepted.
    if (command.verb == SmtpVerb::Bdat) {
        const bool unknown = reply.code == 500 || reply.code == 502;
        m_chunkingFailed = unknown || (reply.code == 503 && m_recipientsAccepted > 0);
        if (m_chunkingFailed)
            decide(Outcome::NotTaken);
    }
    if (m_outcome == Outcome::Open)
        m_verdict = reply.toServerReply(command.verb);
    decide(Outcome::Refused);
}

QString Transaction::reasonToEnd() const
{
    if (!m_farewell.isEmpty())
        return u"the server said "_s + m_farewell.toText();
    return m_chunkingFailed ? u"the server announces CHUNKING and does not know BDAT"_s : QString();
}

void Transaction::cut(bool allWritten)
{
    decide(m_contentTaken && allWritten ? Outcome::InDoubt : Outcome::NotTaken);
    m_awaited.clear();
}

QList<ServerReply> Transaction::replies() const
{
    const bool final = m_outcome == Outcome::Accepted || m_outcome == Outcome::Refused;
    QList<ServerReply> result = m_refusals;
    for (ServerReply &reply : result) {
        if (final && reply.isEmpty())
            reply = m_verdict;
        else if (!final && reply.code == 421)
            reply = {};
    }
    return result;
}
