#include "smtp/client/SmtpProbe.h"

#include "smtp/client/Session.h"

#include <QHostAddress>

#include <utility>

SmtpProbe::SmtpProbe(const ClientSurroundings &from, QObject *parent)
    : ServerProbe(parent), m_from(from)
{}

void SmtpProbe::begin(const ServerAddress &server)
{
    giveUp();
    m_server = server;
    m_lookup = QHostInfo::lookupHost(server.host, this, &SmtpProbe::onFound);
}

void SmtpProbe::giveUp()
{
    if (m_lookup)
        QHostInfo::abortHostLookup(*std::exchange(m_lookup, std::nullopt));
    if (m_session)
        std::exchange(m_session, nullptr)->quit();
}

void SmtpProbe::onFound(const QHostInfo &host)
{
    if (m_lookup != host.lookupId()) // of one that was given up
        return;
    m_lookup.reset();
    m_addresses.clear();
    for (const QHostAddress &address : host.addresses())
        m_addresses += address.toString();
    if (host.error() != QHostInfo::NoError) {
        ServerReport report;
        report.server = m_server;
        report.failureNumber = SmtpErrorNumber::CannotConnect;
        report.failure = QStringLiteral("there is no such server: ") + host.errorString();
        Q_EMIT finished(report);
        return;
    }
    m_session = new Session(m_from, this);
    connect(m_session, &Session::progressed, this, [this] { Q_EMIT progressed(report()); });
    connect(m_session, &Session::reported, this, &SmtpProbe::onReported);
    m_session->open(m_server, {});
}

ServerReport SmtpProbe::report() const
{
    ServerReport report = m_session->description();
    report.addresses = m_addresses;
    return report;
}

// The session is ready or has ended: nothing more is wanted of it.
void SmtpProbe::onReported()
{
    const ServerReport last = report();
    giveUp();
    Q_EMIT finished(last);
}
