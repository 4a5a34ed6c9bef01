#pragma once

#include "base/Clock.h"
#include "base/RegionalFormats.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "message/MessageBodies.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"
#include "sending/MessageFiller.h"
#include "sending/RunRecorder.h"
#include "sending/SendSession.h"
#include "sending/Turns.h"
#include "smtp/Smtp.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

/// How a save that a command asked for came out.
enum class SaveOutcome {
    Saved,
    Abandoned, ///< the user cancelled the choice of a name
    Failed,
};

/// How many of the checked recipients a run has finished, and of how many.
struct Progress
{
    int done = 0;
    int total = 0;
};

/// What the engine works with. All of it outlives the engine.
struct EngineParts
{
    Form &form;
    RecipientList &recipients;
    MessageFiller &filler;
    MessageBodies &bodies;
    Smtp &SMTP;
    Prompts &prompts;
    CLog &AppLog;
    const Clock &clock;
    const RegionalFormats &formats;
    SecondTimer &Timer;  ///< counts down to the next packet
    SecondTimer &Timer2; ///< shows elapsed and remaining time
    /// Runs the save command; what is above the engine hands it in.
    std::function<void(std::function<void(SaveOutcome)>)> save;
};

/// A run: from Start through packets, results, pause, resume and stop to its end. Every step is
/// started by the user, by a tick or by an event of the client, and nothing waits.
///
/// The client gets one message at a time. What is in flight is remembered by the identity of its
/// rows: a result concerns them and nothing else, so that nobody can be mailed twice because a
/// cursor moved meanwhile.
class SendingEngine : public QObject
{
    Q_OBJECT

public:
    explicit SendingEngine(const EngineParts &parts);

    /// Who keeps the runs on the disk, and outlives them; nobody at first.
    void setRecorder(RunRecorder &recorder);

    // The user's commands.
    void cmdAvvio_Click();
    /// Pauses a run that goes, resumes one that is paused.
    void cmdPausa_Click();
    void cmdStop_Click();

    /// Loads both bodies anew, with their pictures. False when a file cannot be read; resuming a
    /// paused run then tries again.
    bool loadBodies();
    /// Puts the window into the paused state, for a project that was saved so.
    void EnterPausedState();
    /// Ends the run and restores the idle window. Touches neither the connection nor the rows'
    /// states.
    void StopSending();
    /// One step of the elapsed and remaining time.
    void Timer2_Timer();

    [[nodiscard]] qint32 nextRecipientIndex() const { return m_session.nextRecipientIndex; }
    void setNextRecipientIndex(qint32 index);
    [[nodiscard]] Progress progress() const;
    /// The identity of the row that this run appended for the control address; 0 without one.
    [[nodiscard]] quint64 controlRow() const { return m_controlRow; }

    /// Whether a message of the present run is in flight. One of an earlier run may be too; what
    /// becomes of that is no concern of the present rows.
    [[nodiscard]] bool messageInFlight() const { return m_inFlight && !isStale(*m_inFlight); }
    /// The rows of the message in flight as they are while nobody knows what became of it.
    [[nodiscard]] SettledMessage settledInDoubt() const;
    /// Calls back once, when the message in flight is settled.
    void whenSettled(std::function<void(const SettledMessage &)> then);
    [[nodiscard]] Turns &turns() { return m_turns; }

Q_SIGNALS:
    /// A row got its result in this run: "Sent", "Error!" or "Not sent".
    void rowDone(int position);
    /// The run ended by itself: no checked row was left.
    void runEnded();
    /// The session failed, and with it the run.
    void runFailed(qint32 Number, const QString &Description);
    /// The run paused by itself, because it cannot be recorded.
    void runHalted();

private:
    // Start
    void checkPictures();
    void offerToSave();
    void beginRun();
    void ConnectForPacket();

    // Dispatch
    void SMTP_StatusChanged(qint32 Code);
    void sendNext();
    void endPacket();
    [[nodiscard]] bool findNextRecipient();
    [[nodiscard]] std::vector<int> takeGroup();
    enum class Addressing { Single, Group };
    void handOver(const std::vector<int> &positions, Addressing addressing);
    void markNotSent(int position);

    // Results
    void SMTP_MessageDone(bool Sent);
    void SMTP_SmtpError(qint32 Number, const QString &Description);
    [[nodiscard]] bool isStale(const MessageInFlight &message) const;
    [[nodiscard]] SettledMessage takeBrokenMessage();
    [[nodiscard]] SettledMessage mark(const MessageInFlight &message,
                                      const std::vector<RowResult> &results);
    void log(const MessageInFlight &message, const std::vector<RowResult> &results);
    void settle(const SettledMessage &settlement);

    // Pacing
    void Timer_Timer();
    void SMTP_LoginAwaited(bool waits);
    void pause();
    void halt();
    void enterPause(const char *reason);
    void resume();
    void endRunOfItself(const QString &text);
    void failTimer(const QString &reason);
    void setRunState(RunState state, const char *reason);
    void applyTimers();
    void startNewRun();
    [[nodiscard]] std::shared_ptr<void> holdTimer();
    [[nodiscard]] std::optional<qint32> estimate() const;

    [[nodiscard]] QString stateText(RowState state) const
    {
        return stateWord(state, m_form.language());
    }

    Form &m_form;
    RecipientList &m_recipients;
    MessageFiller &m_filler;
    MessageBodies &m_bodies;
    Smtp &m_SMTP;
    Prompts &m_prompts;
    CLog &m_AppLog;
    const Clock &m_clock;
    const RegionalFormats &m_formats;
    SecondTimer &m_Timer;
    SecondTimer &m_Timer2;
    std::function<void(std::function<void(SaveOutcome)>)> m_save;
    NoRecorder m_noRecorder;
    RunRecorder *m_recorder = &m_noRecorder;

    SendSession m_session;
    std::optional<MessageInFlight> m_inFlight;
    std::vector<std::function<void(const SettledMessage &)>> m_whenSettled;
    Turns m_turns;
    quint64 m_controlRow = 0;
    quint32 m_startedRun = 0;          ///< the number of the run that started last
    int m_searchFrom = 1;              ///< behind the last row that was finished
    bool m_sessionIsOfThisRun = false; ///< connected since Start, Resume or load
    bool m_readyWaits = false;         ///< the client could take a message, the recorder not
    bool m_bodiesLoaded = false;
    int m_timerHolds = 0;
};
