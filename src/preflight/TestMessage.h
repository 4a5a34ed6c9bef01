#pragma once

#include "preflight/TrialMessage.h"

#include <QObject>

/// "Send a test to me": the message as a row of the list would get it, sent outside any run.
class TestMessage : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Accepted,
        Refused,  ///< the server, or the message itself, would not have it
        NotBegun, ///< a message file cannot be read, or server or address are missing
        Failed,   ///< the session failed
    };

    explicit TestMessage(TrialMessage &trial);

    /// Sends the message that the row at this position (1 is the first; 0 or a list without rows: a
    /// message without a name) would get, to that address. One that is under way is given up.
    void send(int position, const QString &address);
    /// Gives up without a further signal, as far as the message has not been handed over.
    void giveUp();

    /// What became of the last one that finished.
    [[nodiscard]] Outcome outcome() const { return m_outcome; }

Q_SIGNALS:
    /// It is over. The text says in plain words what became of it: the server's reply, or why the
    /// message was not sent.
    void finished(bool accepted, const QString &text);

private:
    enum class Phase { Idle, Connecting, InFlight };

    void onStatusChanged(qint32 code);
    void onMessageDone(bool sent);
    void onSmtpError(const QString &description);
    [[nodiscard]] bool settlesAbandoned();
    void finish(Outcome outcome, const QString &text);
    void finishLater(Outcome outcome, const QString &text);

    TrialMessage &m_trial;
    Smtp &m_SMTP;
    Phase m_phase = Phase::Idle;
    bool m_abandonedInFlight = false; ///< a message that was given up is not settled yet
    quint32 m_turn = 0;               ///< changes with every send and giveUp
    quint32 m_project = 0;            ///< whose message it is
    int m_position = 0;
    QString m_address;
    Outcome m_outcome = Outcome::NotBegun;
};
