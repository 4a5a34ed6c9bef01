#pragma once

#include "JournalRig.h"
#include "RandomPrompts.h"

#include <QHash>
#include <QSet>

#include <random>

/// A program under random orders, which dies now and then, and beside it what is true: whom the
/// server took, whom a run has been handed. Every step checks one against the other; the first
/// difference is kept.
class RunModel
{
public:
    /// What happened, and how often.
    struct Counts
    {
        int messages = 0;
        int runsEnded = 0;
        int resumedFromFile = 0;
        int savesInFlight = 0;
        int staleResults = 0;
        int diskFailures = 0;
        QHash<RunState, int> deaths; ///< by the state of the run
        int deathsInFlight = 0;
        QHash<Answer, int> recoveries; ///< by the answer
        int inDoubt = 0;               ///< recipients of runs that were left behind
        int continuedToEnd = 0;        ///< runs that ended by themselves in another program
    };

    explicit RunModel(quint32 seed);

    /// One thing that a user, the clock, the server, the disk or fate does.
    void step();
    /// Lets the present run come to its end; it must.
    void drain();

    [[nodiscard]] QString failure() const { return m_failure; }
    [[nodiscard]] const Counts &counts() const { return m_counts; }

private:
    /// What a run has done, whoever tells.
    struct Truth
    {
        QSet<QString> handed;   ///< the addresses handed over
        QSet<QString> accepted; ///< those whose rows may say "Sent"
        QSet<QString> released; ///< those that may be handed over again, where that is known
        QHash<QString, RowState> settled; ///< what the client said became of them
        bool diskFailed = false;          ///< some of that may not have been written
        bool wasContinued = false;
    };
    /// What a saved file must keep to when it is opened and goes on.
    struct Saved
    {
        QByteArray content;
        QSet<QString> handed;
    };

    [[nodiscard]] RigWith<RandomPrompts> &rig() { return *m_journal.rig; }
    void watch();

    void userDoesSomething();
    void start();
    void tick();
    void serverDoesSomething();
    void finishMessage();
    void breakSession(bool mayHaveBeenAccepted);
    void diskDoesSomething();
    void save();
    void die();

    void resumeOrStop();
    void onSend();
    void onRunEnded();
    void noteNewRun();
    void noteFile(RunState runState);
    void noteRecord(const Truth &truth);
    void keepTruth();
    /// The truth of the run whose message is in flight: its record's, and the present one.
    void forTruthsOfMessage(const std::function<void(Truth &)> &change);
    void checkRows();
    [[nodiscard]] bool isStale() const { return m_inFlightRun != m_truthRun; }

    void fail(const QString &what);
    void say(const QString &what);
    [[nodiscard]] int upTo(int count);
    [[nodiscard]] bool oneIn(int count) { return upTo(count) == 0; }

    std::mt19937 m_random;
    JournalRigWith<RandomPrompts> m_journal;
    QString m_failure;
    QStringList m_story; ///< the last steps
    Counts m_counts;

    Situation m_seen;
    Truth m_truth; ///< of the present run
    quint32 m_truthRun = 0;
    QStringList m_inFlight; ///< the addresses of the message in flight
    quint32 m_inFlightRun = 0;
    QString m_inFlightRecord; ///< of its run
    int m_roomInPacket = 0;
    QHash<QString, Saved> m_files;
    QHash<QString, Truth> m_records; ///< by the record's file
};
