#include "ui/SleepInhibitor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

SleepInhibitor::SleepInhibitor(const Form &form, QObject *parent) : QObject(parent)
{
    connect(&form, &Form::runStateChanged, this, &SleepInhibitor::follow);
}

void SleepInhibitor::follow(RunState state)
{
    m_isWanted = state == RunState::Waiting || state == RunState::Sending;
    if (!m_isWanted)
        m_lock = {};
    else if (!m_lock.isValid() && !m_isAsked)
        ask();
}

void SleepInhibitor::ask()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                       u"org.freedesktop.login1.Manager"_s, u"Inhibit"_s);
    call.setArguments({u"sleep"_s, u"Sorvanta"_s, tr("A mailing is being sent."), u"block"_s});
    const QDBusPendingCall answer = QDBusConnection::systemBus().asyncCall(call);
    auto *const watcher = new QDBusPendingCallWatcher(answer, this);
    m_isAsked = true;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        m_isAsked = false;
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        // The run may be over by now.
        if (reply.isValid() && m_isWanted)
            m_lock = reply.value();
        watcher->deleteLater();
    });
}
