// The clock of a run: countdown, pause, resume, stop and end.

#include "sending/SendingEngine.h"

#include "base/Numbers.h"
#include "sending/StartRefusals.h"
#include "sending/TimeTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Pacing)
};

} // namespace

void SendingEngine::setNextRecipientIndex(qint32 index)
{
    m_session.nextRecipientIndex = index;
    m_searchFrom = std::max(1, index);
}

void SendingEngine::Timer_Timer()
{
    --m_session.secondsToNextPacket;
    m_form.setText(Control::lblTimer, countdownText(m_session.secondsToNextPacket));
    if (m_session.secondsToNextPacket != 0)
        return;
    m_form.setText(Control::lblTimer, Texts::tr("Sending..."));
    setRunState(RunState::Sending, "the countdown is over");
    const auto packetSize = toNumber<qint32>(m_form.text(Control::txtNMsg));
    const auto delay = delaySeconds(m_form);
    if (!packetSize || !delay) {
        failTimer(Texts::tr("The number of messages per packet or the delay between packets is "
                            "not a number."));
        return;
    }
    m_session.packetMessagesLeft = *packetSize;
    // Set before connecting, because a connection can fail at once and end the run.
    m_session.secondsToNextPacket = std::max(1, *delay);
    ConnectForPacket();
}

// Somebody may have to find a password first. Whoever pauses or stops meanwhile sees that instead.
void SendingEngine::SMTP_LoginAwaited(bool waits)
{
    if (m_sessionIsOfThisRun && m_form.runState() == RunState::Sending)
        m_form.setText(Control::lblTimer,
                       waits ? Texts::tr("Waiting for the login...") : Texts::tr("Sending..."));
}

void SendingEngine::failTimer(const QString &reason)
{
    m_prompts.notice({Icon::Critical, Texts::tr("Error"), reason});
    StopSending();
    Q_EMIT runFailed(0, reason);
}

void SendingEngine::cmdPausa_Click()
{
    if (!m_form.isEnabled(Control::cmdPausa))
        return;
    if (m_form.runState() == RunState::Paused)
        m_turns.take([this] { resume(); });
    else
        pause();
}

void SendingEngine::pause()
{
    enterPause("the user paused");
    m_AppLog.WriteMessage(QStringLiteral("User has pressed the pause command"));
}

// Not stopped: whoever makes room on the disk can go on where the run stood.
void SendingEngine::halt()
{
    enterPause("the run cannot be recorded");
    m_SMTP.Disconnect();
    m_sessionIsOfThisRun = false;
    m_AppLog.WriteMessage(QStringLiteral("Sending procedure paused"));
    Q_EMIT runHalted();
}

void SendingEngine::enterPause(const char *reason)
{
    setRunState(RunState::Paused, reason);
    m_form.setText(Control::lblTimer, Texts::tr("Pause..."));
    if (m_session.packetMessagesLeft > 0) {
        m_session.packetMessagesLeft = 0;
        m_session.secondsToNextPacket = 1;
    }
}

void SendingEngine::resume()
{
    if (m_form.runState() != RunState::Paused)
        return;
    if (const auto refusal = refusalOfPacketNumbers(m_form)) {
        m_prompts.notice(refusal->box);
        return;
    }
    if (!m_bodiesLoaded && !loadBodies())
        return;
    if (!m_recorder->claim() || !m_recorder->begin())
        return;
    m_sessionIsOfThisRun = false;
    setRunState(RunState::Waiting, "the user resumed");
    m_session.recipientsLeft = m_recipients.checkedFrom(m_session.nextRecipientIndex);
    m_form.setText(Control::lblTimer, countdownText(m_session.secondsToNextPacket));
    m_AppLog.WriteMessage(QStringLiteral("User has pressed the resume command"));
}

void SendingEngine::cmdStop_Click()
{
    m_turns.take([this] {
        if (!m_form.isEnabled(Control::cmdStop))
            return;
        Question question;
        question.topic = Topic::StopProcedure;
        question.buttons = Buttons::OkCancel;
        question.title = Texts::tr("Stop");
        question.text = Texts::tr("Stop the procedure?");
        // No packet starts while the question is open. The hold ends with the question, however
        // that ends; it is not a change of the timer, which a packet may enable meanwhile.
        m_prompts.ask(
            question, [this, asked = m_form.situation()] { return m_form.situation() == asked; },
            [this, hold = holdTimer()](Answer answer) {
                if (answer == Answer::Cancel)
                    return;
                m_AppLog.WriteMessage(QStringLiteral("User has pressed the stop command"));
                StopSending();
                // A message in flight finishes; a session that has none must not ask for a login
                // any more.
                m_SMTP.Disconnect();
                m_form.setProjectModified(true);
            });
    });
}

void SendingEngine::EnterPausedState()
{
    startNewRun();
    m_SMTP.Disconnect(); // the session of the project before may be waiting for a login
    setRunState(RunState::Paused, "a project saved in a pause was opened");
    m_form.setText(Control::lblTimer, Texts::tr("Pause..."));
    m_session.secondsToNextPacket = 1;
    // Which row the run appended is not in the file: it is the last one, if it is the control
    // address's.
    m_controlRow = 0;
    const QString control = m_form.text(Control::txtControl);
    if (!control.isEmpty() && m_recipients.count() > 0) {
        const Recipient &last = m_recipients.at(m_recipients.count());
        if (last.address == control)
            m_controlRow = last.id;
    }
    m_recorder->pausedRunOpened();
    m_AppLog.WriteMessage(QStringLiteral("Sending procedure paused"));
}

void SendingEngine::StopSending()
{
    setRunState(RunState::Idle, "the run is over");
    m_form.countRunChanged();
    m_sessionIsOfThisRun = false;
    m_readyWaits = false;
    m_recorder->over();
    m_bodies.emptyWorkingFolder();
    // Only the row that this run appended: a project opened meanwhile keeps all its recipients.
    if (const int position = m_recipients.positionOf(m_controlRow, m_recipients.count());
        m_controlRow != 0 && position > 0)
        m_recipients.remove({position});
    m_controlRow = 0;
    m_form.setText(Control::lblTimer, Texts::tr("Not started"));
    // The elapsed time stays shown; only what the next run counts from is cleared.
    m_form.setText(Control::lblRimanente, QStringLiteral("--:--"));
    m_form.setTag(Control::lblTrascorso, QStringLiteral("0"));
    m_form.setTag(Control::lblRimanente, QStringLiteral("-"));
    m_AppLog.WriteMessage(QStringLiteral("Sending procedure stopped"));
}

void SendingEngine::Timer2_Timer()
{
    const QString noTime = QStringLiteral("--:--");
    const auto elapsed =
        wholeNumber(m_form.tag(Control::lblTrascorso), std::numeric_limits<qint32>::min(),
                    std::numeric_limits<qint32>::max() - 1);
    if (!elapsed) {
        m_form.setText(Control::lblTrascorso, noTime);
        m_form.setText(Control::lblRimanente, noTime);
        return;
    }
    const auto seconds = static_cast<qint32>(*elapsed + 1);
    m_form.setTag(Control::lblTrascorso, QString::number(seconds));
    m_form.setText(Control::lblTrascorso, durationText(seconds));
    if (m_SMTP.StatusFlag() != 0 || m_form.tag(Control::lblRimanente) == u"-")
        return;
    const auto remaining = estimate();
    m_form.setText(Control::lblRimanente, remaining ? durationText(*remaining) : noTime);
}

std::optional<qint32> SendingEngine::estimate() const
{
    const auto packetSize = toNumber<qint16>(m_form.text(Control::txtNMsg));
    const auto delay = toNumber<qint16>(m_form.text(Control::txtPausa));
    const auto left = m_session.recipientsLeft;
    const auto duration =
        roundedSeconds(m_form.tag(Control::lblRimanente), m_formats.decimalSign());
    const bool leftFits =
        left >= std::numeric_limits<qint16>::min() && left <= std::numeric_limits<qint16>::max();
    if (!packetSize || !delay || !duration || !leftFits)
        return std::nullopt;
    return remainingSeconds({*packetSize, *delay, static_cast<qint16>(left),
                             m_session.packetMessagesLeft, m_session.secondsToNextPacket,
                             *duration});
}
