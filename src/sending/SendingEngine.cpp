#include "sending/SendingEngine.h"

#include <QPointer>

SendingEngine::SendingEngine(const EngineParts &parts)
    : m_form(parts.form),
      m_recipients(parts.recipients),
      m_filler(parts.filler),
      m_bodies(parts.bodies),
      m_SMTP(parts.SMTP),
      m_prompts(parts.prompts),
      m_AppLog(parts.AppLog),
      m_clock(parts.clock),
      m_formats(parts.formats),
      m_Timer(parts.Timer),
      m_Timer2(parts.Timer2),
      m_save(parts.save)
{
    m_Timer.onTick = [this] { Timer_Timer(); };
    m_Timer2.onTick = [this] { Timer2_Timer(); };
    connect(&m_SMTP, &Smtp::StatusChanged, this, &SendingEngine::SMTP_StatusChanged);
    connect(&m_SMTP, &Smtp::LoginAwaited, this, &SendingEngine::SMTP_LoginAwaited);
    connect(&m_SMTP, &Smtp::MessageDone, this, &SendingEngine::SMTP_MessageDone);
    connect(&m_SMTP, &Smtp::SmtpError, this, &SendingEngine::SMTP_SmtpError);
}

void SendingEngine::setRecorder(RunRecorder &recorder)
{
    m_recorder = &recorder;
    recorder.onCaughtUp = [this] {
        if (m_readyWaits)
            sendNext();
    };
}

// The timers follow from the state; nothing else switches them.
void SendingEngine::setRunState(RunState state, const char *reason)
{
    m_form.setRunState(state, reason);
    applyTimers();
}

void SendingEngine::applyTimers()
{
    m_Timer.setEnabled(countsDown(m_form.runState()) && m_timerHolds == 0);
    m_Timer2.setEnabled(showsTime(m_form.runState()));
}

std::shared_ptr<void> SendingEngine::holdTimer()
{
    ++m_timerHolds;
    applyTimers();
    return {this, [engine = QPointer(this)](void *) {
                if (!engine)
                    return;
                --engine->m_timerHolds;
                engine->applyTimers();
            }};
}

// From here on results of earlier runs are stale, and the client's session is not ours until the
// next packet connects.
void SendingEngine::startNewRun()
{
    m_form.countRunChanged();
    m_startedRun = m_form.situation().run;
    m_sessionIsOfThisRun = false;
}

void SendingEngine::whenSettled(std::function<void(const SettledMessage &)> then)
{
    m_whenSettled.push_back(std::move(then));
}

void SendingEngine::settle(const SettledMessage &settlement)
{
    const auto waiting = std::exchange(m_whenSettled, {});
    for (const auto &then : waiting)
        then(settlement);
}

Progress SendingEngine::progress() const
{
    const int total = m_recipients.checkedFrom(1);
    return {total - m_recipients.checkedFrom(m_session.nextRecipientIndex), total};
}
