#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QTest>
#include <QVariantMap>

#include <sys/select.h>
#include <unistd.h>

#include <memory>
#include <vector>

/// Whether everything that was asked over that connection is answered before long: calls are taken
/// in their order, and one of the test's own is sent behind them. Nobody needs to be there.
inline bool isAllAnswered(const QDBusConnection &bus, const QString &service, const QString &path)
{
    const QDBusPendingCallWatcher last(
        bus.asyncCall(QDBusMessage::createMethodCall(service, path, {}, QStringLiteral("last"))));
    bool isAnswered = false;
    QObject::connect(&last, &QDBusPendingCallWatcher::finished,
                     [&isAnswered] { isAnswered = true; });
    return QTest::qWaitFor([&isAnswered] { return isAnswered; });
}

/// A lock that somebody holds: a pipe, whose other end says when it is given up.
class FakeLock
{
public:
    FakeLock()
    {
        if (::pipe(m_ends) != 0)
            qFatal("there is no pipe");
    }
    FakeLock(const FakeLock &) = delete;
    FakeLock &operator=(const FakeLock &) = delete;
    ~FakeLock()
    {
        release();
        ::close(m_ends[0]);
    }

    /// The end to give away; taken once.
    QDBusUnixFileDescriptor take()
    {
        QDBusUnixFileDescriptor given(m_ends[1]);
        release();
        return given;
    }
    [[nodiscard]] bool isGivenUp() const
    {
        fd_set ends;
        FD_ZERO(&ends);
        FD_SET(m_ends[0], &ends);
        timeval none = {};
        // Nobody writes: it can be read only when the last holder has closed it.
        return ::select(m_ends[0] + 1, &ends, nullptr, nullptr, &none) == 1;
    }

private:
    void release()
    {
        if (m_ends[1] >= 0)
            ::close(m_ends[1]);
        m_ends[1] = -1;
    }

    int m_ends[2] = {-1, -1};
};

/// The login manager of a system, on the bus of the test.
class FakeLoginManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    struct Asked
    {
        QStringList arguments;
        std::unique_ptr<FakeLock> lock;
    };

    FakeLoginManager()
    {
        const bool there = m_bus.registerService(QStringLiteral("org.freedesktop.login1")) &&
                           m_bus.registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                                                QDBusConnection::ExportAllSlots);
        if (!there)
            qFatal("there is no bus for the test");
    }
    ~FakeLoginManager() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("fake login"));
    }

    std::vector<Asked> asked;

    [[nodiscard]] static bool hasAnsweredAll()
    {
        return isAllAnswered(QDBusConnection::systemBus(), QStringLiteral("org.freedesktop.login1"),
                             QStringLiteral("/org/freedesktop/login1"));
    }

public Q_SLOTS:
    void last() {}
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who, const QString &why,
                                    const QString &mode)
    {
        asked.push_back({{what, who, why, mode}, std::make_unique<FakeLock>()});
        return asked.back().lock->take();
    }

private:
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("fake login"));
};

/// One notification that was shown.
struct ShownNotification
{
    quint32 replaces = 0;
    QString icon;
    QString summary;
    QString body;
    QStringList actions;
    QVariantMap hints;
};

/// The notifications of a desktop, on the bus of the test.
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    static constexpr uint Id = 7;

    FakeNotifications()
    {
        const bool there = m_bus.registerService(QStringLiteral("org.freedesktop.Notifications")) &&
                           m_bus.registerObject(
                               QStringLiteral("/org/freedesktop/Notifications"), this,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        if (!there)
            qFatal("there is no bus for the test");
    }
    ~FakeNotifications() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("fake notifications"));
    }

    QList<ShownNotification> shown;

    [[nodiscard]] static bool hasAnsweredAll()
    {
        return isAllAnswered(QDBusConnection::sessionBus(),
                             QStringLiteral("org.freedesktop.Notifications"),
                             QStringLiteral("/org/freedesktop/Notifications"));
    }

public Q_SLOTS:
    void last() {}
    uint Notify(const QString &, uint replaces, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int)
    {
        shown.append({replaces, icon, summary, body, actions, hints});
        return Id;
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);

private:
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                                          QStringLiteral("fake notifications"));
};
