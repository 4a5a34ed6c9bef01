#include "TestNight.h"

#include "support/Seeds.h"
#include "support/WorkspaceRig.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr int Recipients = 10'000;
constexpr int PacketSize = 50;
constexpr int DelayMinutes = 5;
constexpr int Delay = DelayMinutes * 60;
constexpr qint64 Second = 1000;
constexpr auto NoTime = "--:--";

/// The duration as the labels show it.
QString durationText(int seconds)
{
    constexpr int Hour = 3600;
    const auto twoDigits = [](int number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    if (seconds <= Hour)
        return twoDigits(seconds / 60) + u':' + twoDigits(seconds % 60);
    return QString::number(seconds / Hour) + u':' + twoDigits(seconds % Hour / 60) + u':' +
           twoDigits(seconds % 60);
}

/// Halves go to the even second.
int wholeSeconds(qint64 milliseconds)
{
    return static_cast<int>(std::nearbyint(static_cast<double>(milliseconds) / Second));
}

/// What the clock, the server and the user do in a night, and beside the program what the rules of
/// packets and labels make of it.
class Night
{
public:
    struct Counts
    {
        int packets = 0;
        int pausesInPackets = 0;
        int pausesInWaits = 0;
        int resumesInFlight = 0; ///< with the message of the pause still in flight
        int estimates = 0;
        int overflows = 0; ///< of the estimate
    };

    explicit Night(quint32 seed) : m_random(seed)
    {
        rig.clock.setUtc(QDateTime({2026, 11, 30}, {19, 0}, Qt::UTC));
        rig.fillForm(Recipients);
        rig.w.form.setText(Control::txtNMsg, QString::number(PacketSize));
        rig.w.form.setText(Control::txtPausa, QString::number(DelayMinutes));
        rig.smtp.onConnect = [this] { onConnect(); };
        rig.smtp.onSend = [this] { onSend(); };
        rig.start();
    }

    /// Until the run is over, or something is wrong, which is returned.
    QString pass()
    {
        constexpr int Patience = 2 * Recipients / PacketSize * Delay;
        for (int second = 0; second < Patience && m_complaint.isEmpty(); ++second) {
            m_second = now();
            serve();
            if (rig.w.form.runState() == RunState::Idle)
                return m_complaint;
            act();
            rig.clock.advanceMilliseconds(m_second + Second - now());
            tick();
        }
        complain("the run does not end");
        return m_complaint;
    }

    [[nodiscard]] const Counts &counts() const { return m_counts; }

    WorkspaceRig rig;

private:
    [[nodiscard]] qint64 now() const { return rig.clock.milliseconds(); }
    [[nodiscard]] int upTo(int count)
    {
        return std::uniform_int_distribution<int>(0, count - 1)(m_random);
    }
    [[nodiscard]] bool oneIn(int count) { return upTo(count) == 0; }

    void complain(const QString &what)
    {
        if (m_complaint.isEmpty())
            m_complaint = rig.clock.now().toString(Qt::ISODate) + QLatin1String(": ") + what;
    }
    void complain(const char *what) { complain(QString::fromLatin1(what)); }

    // A message takes from a tenth of a second to some seconds.
    void serve()
    {
        constexpr int Slow = 2500;
        constexpr int Fast = 400;
        constexpr int Least = 100;
        for (;;) {
            if (rig.smtp.messageInFlight()) {
                if (m_readyAt == 0)
                    m_readyAt = m_handedAt + Least + upTo(oneIn(20) ? 2 * Slow : Fast);
                if (m_readyAt >= m_second + Second)
                    return;
                rig.clock.advanceMilliseconds(std::max(qint64{0}, m_readyAt - now()));
                m_readyAt = 0;
                m_lastDuration = now() - m_handedAt;
                --m_recipientsLeft;
                rig.smtp.raiseDone(true);
                WorkspaceRig::settle(); // a Connect that waited has its turn
            } else if (rig.smtp.readyIsDue()) {
                rig.smtp.raiseReady();
                if (!rig.smtp.messageInFlight())
                    onPacketEnded();
            } else {
                return;
            }
        }
    }

    // Packets are short beside the waits: most pauses would lie in these. Now and then a pause was
    // a mistake.
    void act()
    {
        const bool isInPacket = m_isOpen;
        if (m_isPaused ? oneIn(isInPacket ? 3 : 200) : oneIn(isInPacket ? 100 : 1500)) {
            pauseOrResume();
            if (m_isPaused && oneIn(3))
                pauseOrResume();
        }
    }
    void pauseOrResume()
    {
        m_isPaused ? resume() : pause();
        rig.w.engine.cmdPausa_Click();
    }
    void pause()
    {
        m_isPaused = true;
        m_countsDown = false;
        (m_isOpen ? m_counts.pausesInPackets : m_counts.pausesInWaits) += 1;
        m_pausedInPacket = m_pausedInPacket || m_isOpen;
        if (m_roomInPacket > 0) {
            m_roomInPacket = 0;
            m_secondsToPacket = 1;
        }
    }
    void resume()
    {
        m_isPaused = false;
        m_countsDown = true;
        m_counts.resumesInFlight += rig.smtp.messageInFlight() ? 1 : 0;
    }

    void tick()
    {
        rig.smtp.statusFlag = oneIn(10) ? 1 : 0;
        if (m_countsDown && --m_secondsToPacket == 0) {
            m_countsDown = false;
            m_connectIsDue = true;
            m_roomInPacket = PacketSize;
            m_secondsToPacket = Delay;
        }
        if (!m_isPaused) {
            ++m_elapsed;
            ++m_waited;
        }
        rig.Timer.tick();
        if (m_connectIsDue && !rig.smtp.messageInFlight())
            complain("the packet does not start when it is due");
        rig.Timer2.tick();
        if (!m_isPaused)
            estimate();
        if (rig.label(Control::lblTrascorso) != durationText(m_elapsed))
            complain(QLatin1String("the elapsed time is ") + rig.label(Control::lblTrascorso));
        if (rig.label(Control::lblRimanente) != m_estimate)
            complain(QStringLiteral("the remaining time is %1, not %2")
                         .arg(rig.label(Control::lblRimanente), m_estimate));
    }

    void estimate()
    {
        if (rig.smtp.statusFlag != 0 || m_lastDuration < 0)
            return;
        const int perMessage = wholeSeconds(m_lastDuration);
        const int ofMessages = perMessage * m_recipientsLeft;
        // The numbers of the estimate have sixteen bits.
        if (ofMessages > std::numeric_limits<qint16>::max()) {
            ++m_counts.overflows;
            m_estimate = QLatin1String(NoTime);
            return;
        }
        ++m_counts.estimates;
        const int waits = (PacketSize + m_recipientsLeft - m_roomInPacket - 1) / PacketSize;
        m_estimate = durationText(waits * Delay + ofMessages - (Delay - m_secondsToPacket));
    }

    void onConnect()
    {
        if (!m_connectIsDue)
            complain("a packet starts that is not due");
        // After a pause inside a packet the next begins at once; any other keeps its distance.
        if (m_counts.packets > 0 && !m_pausedInPacket &&
            (m_waited != Delay || now() - m_endOfPacket < Delay * Second))
            complain(QStringLiteral("a packet starts after %1 s").arg(m_waited));
        ++m_counts.packets;
        m_connectIsDue = false;
        m_pausedInPacket = m_isPaused;
        m_isOpen = true;
        m_inPacket = 0;
    }
    void onSend()
    {
        --m_roomInPacket;
        m_handedAt = now();
        if (++m_inPacket > PacketSize)
            complain("a packet is too large");
    }
    void onPacketEnded()
    {
        m_isOpen = false;
        m_endOfPacket = now();
        m_second = now(); // the timers were switched on: they tick when a second is over
        m_waited = 0;
        m_countsDown = !m_isPaused;
    }

    std::mt19937 m_random;
    QString m_complaint;
    Counts m_counts;

    qint64 m_second = 0; ///< when the present one began

    // What the server knows.
    bool m_isOpen = false;
    int m_inPacket = 0;
    qint64 m_handedAt = 0;
    qint64 m_readyAt = 0;
    qint64 m_endOfPacket = 0;
    int m_waited = 0; ///< since then; a pause does not count

    // What the rules make of it.
    bool m_isPaused = false;
    bool m_countsDown = true;
    bool m_connectIsDue = false;
    bool m_pausedInPacket = false;
    int m_secondsToPacket = 1;
    int m_roomInPacket = 0;
    int m_recipientsLeft = Recipients;
    qint64 m_lastDuration = -1; ///< milliseconds; none yet
    int m_elapsed = 0;
    QString m_estimate = QLatin1String(NoTime);
};

} // namespace

void TestNight::tenThousandInPacketsOfFiftyKeepThePace_data()
{
    addSeedRows(1);
}

void TestNight::tenThousandInPacketsOfFiftyKeepThePace()
{
    QFETCH(quint32, seed);
    Night night(seed);
    QCOMPARE(night.pass(), QString());

    const Night::Counts &met = night.counts();
    qInfo("%d packets, %d pauses in packets, %d of them resumed with the message in flight, %d in "
          "waits; %d estimates, %d too large",
          met.packets, met.pausesInPackets, met.resumesInFlight, met.pausesInWaits, met.estimates,
          met.overflows);
    QVERIFY(met.packets >= Recipients / PacketSize);
    QVERIFY(met.pausesInPackets > 0);
    QVERIFY(met.resumesInFlight > 0);
    QVERIFY(met.pausesInWaits > 0);
    QVERIFY(met.estimates > 0);
    QVERIFY(met.overflows > 0);

    QStringList expected;
    for (int i = 1; i <= Recipients; ++i)
        expected.append(QStringLiteral("a%1@example.net").arg(i));
    QCOMPARE(night.rig.addressesSent(), expected);
    QCOMPARE(night.rig.states(), QStringList(Recipients, QStringLiteral("Sent")));
    const QList<Notice> notices = night.rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QVERIFY(notices.front().icon == Icon::Information);

    // It is December by now; the log goes on in the file of the month in which it was opened.
    QCOMPARE(night.rig.clock.now().date().month(), 12);
    QVERIFY(!QFile::exists(night.rig.folder.filePath(QStringLiteral("12-2026.log"))));
    const QStringList logged = night.rig.logged();
    QCOMPARE(logged.filter(QStringLiteral(") sent.")).size(), Recipients);
    QCOMPARE(logged.filter(QStringLiteral("has pressed the resume command")).size(),
             met.pausesInPackets + met.pausesInWaits);
    QCOMPARE(logged.last(), QStringLiteral("Sending procedure stopped"));
}
