#include "ui/RunNotification.h"

#include "recipients/TotalsText.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

const QString Service = u"org.freedesktop.Notifications"_s;
const QString Path = u"/org/freedesktop/Notifications"_s;

} // namespace

RunNotification::RunNotification(const SendingEngine &engine, const RecipientList &recipients,
                                 Language language, QWidget &window)
    : QObject(&window), m_recipients(recipients), m_language(language), m_window(&window)
{
    connect(&engine, &SendingEngine::runEnded, this,
            [this] { notify(tr("The mailing is over"), {}); });
    connect(&engine, &SendingEngine::runFailed, this, [this](qint32, const QString &description) {
        notify(tr("The mailing broke off"), description);
    });
    connect(&engine, &SendingEngine::runHalted, this,
            [this] { notify(tr("The mailing is paused"), tr("It cannot be recorded any more.")); });
}

void RunNotification::notify(const QString &summary, const QString &reason)
{
    if (QApplication::activeWindow() != nullptr)
        return;
    QString body = TotalsText(m_language).whole(totalsOfMeant(m_recipients.rows()));
    if (!reason.isEmpty())
        body = reason + u'\n' + body;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(Service, Path, Service, u"ActionInvoked"_s, this, SLOT(wasClicked(uint, QString)));
    QDBusMessage call = QDBusMessage::createMethodCall(Service, Path, Service, u"Notify"_s);
    constexpr int DesktopsOwnTime = -1;
    // What a server said may look like markup.
    call.setArguments({u"Sorvanta"_s, m_shown, u"sorvanta"_s, summary, body.toHtmlEscaped(),
                       QStringList{u"default"_s, tr("Show")},
                       QVariantMap{{u"desktop-entry"_s, u"sorvanta"_s}}, DesktopsOwnTime});
    auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isValid())
            m_shown = reply.value();
        watcher->deleteLater();
    });
}

void RunNotification::wasClicked(uint id, const QString &)
{
    if (id != m_shown || m_window.isNull())
        return;
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->raise();
    m_window->activateWindow();
}
