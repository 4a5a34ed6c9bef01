#include "preflight/TestMessage.h"

#include <utility>

namespace {

QString notSent(const QString &reason)
{
    return TestMessage::tr("The message was not sent: %1").arg(reason);
}

QString withReply(const QString &verdict, const QString &reply)
{
    return reply.isEmpty() ? verdict + u'.' : verdict + QLatin1String(": ") + reply;
}

} // namespace

TestMessage::TestMessage(TrialMessage &trial) : m_trial(trial), m_SMTP(trial.client())
{
    connect(&m_SMTP, &Smtp::StatusChanged, this, &TestMessage::onStatusChanged);
    connect(&m_SMTP, &Smtp::MessageDone, this, &TestMessage::onMessageDone);
    connect(&m_SMTP, &Smtp::SmtpError, this,
            [this](qint32, const QString &description) { onSmtpError(description); });
}

void TestMessage::send(int position, const QString &address)
{
    giveUp();
    const auto server = m_trial.server();
    if (!server) {
        finishLater(Outcome::NotBegun, notSent(server.error()));
        return;
    }
    if (address.trimmed().isEmpty()) {
        finishLater(Outcome::NotBegun, notSent(tr("there is no address to send it to")));
        return;
    }
    // What cannot be read is known before anybody connects.
    if (const auto filled = m_trial.fill(position, address); !filled) {
        finishLater(Outcome::NotBegun, notSent(filled.error()));
        return;
    }
    m_position = position;
    m_address = address;
    m_project = m_trial.project();
    m_phase = Phase::Connecting;
    m_SMTP.Reset();
    m_SMTP.Server = server->host;
    m_SMTP.Port = server->port;
    m_SMTP.Connect();
}

void TestMessage::giveUp()
{
    ++m_turn;
    if (m_phase == Phase::Idle)
        return;
    m_abandonedInFlight = m_abandonedInFlight || m_phase == Phase::InFlight;
    m_phase = Phase::Idle;
    m_SMTP.Disconnect();
}

void TestMessage::onStatusChanged(qint32 code)
{
    if (code != Smtp::Ready || m_phase != Phase::Connecting)
        return;
    if (m_trial.project() != m_project) {
        finish(Outcome::NotBegun, notSent(tr("another project was opened meanwhile")));
        return;
    }
    // Anew, since others may have filled the client meanwhile.
    if (const auto filled = m_trial.fill(m_position, m_address); !filled) {
        finish(Outcome::NotBegun, notSent(filled.error()));
        return;
    }
    m_phase = Phase::InFlight;
    m_SMTP.Send();
}

// What a message that was given up came to is nobody's business any more; one that waits behind it
// goes on.
bool TestMessage::settlesAbandoned()
{
    return std::exchange(m_abandonedInFlight, false);
}

void TestMessage::onMessageDone(bool sent)
{
    if (settlesAbandoned() || m_phase != Phase::InFlight)
        return;
    const QString reply = m_SMTP.lastReplies().value(0).toText();
    if (sent)
        finish(Outcome::Accepted, withReply(tr("The server accepted the message"), reply));
    else
        finish(Outcome::Refused, withReply(tr("The message was refused"), reply));
}

void TestMessage::onSmtpError(const QString &description)
{
    if (settlesAbandoned() || m_phase == Phase::Idle)
        return;
    const bool mayHaveArrived = m_phase == Phase::InFlight && m_SMTP.mayHaveBeenAccepted();
    finish(Outcome::Failed,
           mayHaveArrived
               ? tr("It is not known whether the server accepted the message: %1").arg(description)
               : notSent(description));
}

void TestMessage::finish(Outcome outcome, const QString &text)
{
    m_phase = Phase::Idle;
    m_outcome = outcome;
    m_SMTP.Disconnect();
    Q_EMIT finished(outcome == Outcome::Accepted, text);
}

// From the event loop: whoever calls send learns the result always behind the call.
void TestMessage::finishLater(Outcome outcome, const QString &text)
{
    QMetaObject::invokeMethod(
        this,
        [this, turn = m_turn, outcome, text] {
            if (turn == m_turn)
                finish(outcome, text);
        },
        Qt::QueuedConnection);
}
