// What happens each time the client can take a message: the next one is handed over, or the packet
// or the run ends.

#include "sending/SendingEngine.h"

#include "base/Numbers.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(runTrace, "sorvanta.run", QtCriticalMsg)

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Dispatch)
};

} // namespace

void SendingEngine::SMTP_StatusChanged(qint32 Code)
{
    if (Code == Smtp::Ready)
        sendNext();
}

void SendingEngine::sendNext()
{
    m_readyWaits = false;
    if (m_inFlight) {
        qCDebug(runTrace, "ready while a message is in flight: ignored");
        return;
    }
    if (!m_sessionIsOfThisRun) {
        qCDebug(runTrace, "ready in a session of no present run: disconnecting");
        m_SMTP.Disconnect();
        return;
    }
    if (m_session.packetMessagesLeft < 1) {
        endPacket();
        return;
    }
    if (!m_recorder->isCaughtUp()) {
        m_readyWaits = true;
        return;
    }
    if (!findNextRecipient()) {
        m_SMTP.Disconnect();
        endRunOfItself(Texts::tr("Sending ended."));
        return;
    }
    if (m_form.isChecked(Control::chkMultiSend))
        handOver(takeGroup(), Addressing::Group);
    else
        handOver({m_session.nextRecipientIndex}, Addressing::Single);
}

void SendingEngine::endPacket()
{
    if (m_form.runState() != RunState::Paused)
        setRunState(RunState::Waiting, "the packet is complete");
    m_SMTP.Disconnect();
    m_sessionIsOfThisRun = false;
    if (m_session.nextRecipientIndex > m_recipients.count())
        endRunOfItself(Texts::tr("Sending of the messages ended."));
    else
        m_AppLog.WriteMessage(QStringLiteral("Waiting for next packet..."));
}

void SendingEngine::endRunOfItself(const QString &text)
{
    m_AppLog.WriteMessage(QStringLiteral("Sending ended without problems"));
    StopSending();
    m_prompts.notice({Icon::Information, Texts::tr("Sending"), text});
    Q_EMIT runEnded();
}

// A search comes to a row again when nothing was handed over after the one before.
void SendingEngine::markNotSent(int position)
{
    if (stateOf(m_recipients.at(position)) == RowState::NotSent)
        return;
    m_recipients.setState(position, stateText(RowState::NotSent));
    m_recipients.scrollTo(position);
    Q_EMIT rowDone(position);
}

// The search begins behind the last finished row, so that rows which its result passed over are
// marked too.
bool SendingEngine::findNextRecipient()
{
    for (int position = m_searchFrom; position <= m_recipients.count(); ++position) {
        if (m_recipients.at(position).checked) {
            m_session.nextRecipientIndex = position;
            return true;
        }
        markNotSent(position);
    }
    return false;
}

// The limit of a group is the packet size, not the room left in the packet.
std::vector<int> SendingEngine::takeGroup()
{
    const auto packetSize = toNumber<qint16>(m_form.text(Control::txtNMsg)).value_or(0);
    std::vector<int> group;
    for (int position = m_session.nextRecipientIndex; position <= m_recipients.count();
         ++position) {
        if (m_recipients.at(position).checked)
            group.push_back(position);
        else
            markNotSent(position);
        if (static_cast<int>(group.size()) == packetSize)
            break;
    }
    return group;
}

void SendingEngine::handOver(const std::vector<int> &positions, Addressing addressing)
{
    MessageInFlight message;
    message.subject = m_form.text(Control::txtOggetto);
    message.situation = m_form.situation();
    Addressees to;
    to.name = m_recipients.at(positions.front()).name;
    to.isGroup = addressing == Addressing::Group;
    for (const int position : positions) {
        const Recipient &row = m_recipients.at(position);
        message.rows.push_back({row.id, position, row.address, row.number});
        to.addresses.append(row.address);
    }
    message.identifier = m_filler.fill(m_SMTP, m_bodies, to);
    if (!m_recorder->handingOver(message)) {
        halt();
        return;
    }
    for (const int position : positions) {
        m_recipients.makeCurrent(position);
        const int tries = m_recipients.at(position).attempt.tries + 1;
        m_recipients.setAttempt(
            position, {Outcome::InFlight, {}, m_clock.milliseconds(), tries, message.identifier});
        m_recipients.setState(position, stateText(RowState::Sending));
    }
    m_session.messageStartTick = m_clock.tickCount();
    m_inFlight = message;
    m_SMTP.Send();
    if (addressing == Addressing::Group) {
        // The list is logged with a "," before each address, and without a closing quote.
        m_AppLog.WriteMessage(QLatin1String("Sending message '") + m_SMTP.Subject +
                              QLatin1String("' to ',") + m_SMTP.RecipientAddress);
    } else {
        const MessageInFlight::Row &row = m_inFlight->rows.front();
        m_AppLog.WriteMessage(QLatin1String("Sending message '") + m_SMTP.Subject +
                              QLatin1String("' to '") + row.address + QLatin1String("' (") +
                              row.number + u')');
    }
    m_session.packetMessagesLeft -= static_cast<qint32>(positions.size());
    m_form.setProjectModified(true);
}
