#pragma once

#include "RandomPrompts.h"
#include "support/WorkspaceRig.h"

#include <QHash>
#include <QSet>

#include <random>

/// A workspace under random orders, and beside it what is true: whom the server took, whom a run
/// has been handed. Every step checks one against the other; the first difference is kept.
class RunModel
{
public:
    explicit RunModel(quint32 seed);

    /// One thing that a user, the clock or the server does.
    void step();
    /// Lets the present run come to its end; it must.
    void drain();

    [[nodiscard]] QString failure() const { return m_failure; }
    [[nodiscard]] int messages() const { return m_messages; }
    [[nodiscard]] int runsEnded() const { return m_runsEnded; }
    [[nodiscard]] int resumedFromFile() const { return m_resumedFromFile; }
    [[nodiscard]] int savesInFlight() const { return m_savesInFlight; }
    [[nodiscard]] int staleResults() const { return m_staleResults; }

private:
    /// What a saved file must keep to when it is opened and goes on.
    struct Saved
    {
        QByteArray content;
        QSet<QString> handed;
    };

    void userDoesSomething();
    void start();
    void tick();
    void serverDoesSomething();
    void finishMessage();
    void breakSession(bool mayHaveBeenAccepted);
    void save();
    void onSend();
    void noteNewRun();
    void checkRows();
    void fail(const QString &what);
    void say(const QString &what);
    [[nodiscard]] int upTo(int count);
    [[nodiscard]] bool oneIn(int count) { return upTo(count) == 0; }

    std::mt19937 m_random;
    RigWith<RandomPrompts> m_rig;
    QString m_failure;
    QStringList m_story; ///< the last steps

    Situation m_seen;
    quint32 m_handedRun = 0;  ///< the run that the two sets below belong to
    QSet<QString> m_handed;   ///< the addresses handed over in the present run
    QSet<QString> m_accepted; ///< the addresses whose rows may say "Sent"
    QStringList m_inFlight;   ///< the addresses of the message in flight
    quint32 m_inFlightRun = 0;
    int m_roomInPacket = 0;
    QHash<QString, Saved> m_files;

    int m_messages = 0;
    int m_runsEnded = 0;
    int m_resumedFromFile = 0;
    int m_savesInFlight = 0;
    int m_staleResults = 0;
};
