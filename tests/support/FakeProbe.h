#pragma once

#include "smtp/ServerProbe.h"

#include <QList>

/// A probe that asks no server: it records what it is told, and the test raises the reports.
class FakeProbe : public ServerProbe
{
    Q_OBJECT

public:
    using ServerProbe::ServerProbe;

    QList<ServerAddress> begun; ///< one for each begin
    int timesGivenUp = 0;

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    void begin(const ServerAddress &server) override
    {
        begun += server;
        m_isRunning = true;
    }
    void giveUp() override
    {
        ++timesGivenUp;
        m_isRunning = false;
    }

    /// A report of the server asked last, as far as it got when nothing was wrong.
    [[nodiscard]] ServerReport goodReport() const
    {
        ServerReport report;
        report.server = begun.isEmpty() ? ServerAddress() : begun.last();
        report.reached = ServerStep::Ready;
        report.addresses = QStringList{QStringLiteral("192.0.2.1")};
        report.address = report.addresses.front();
        return report;
    }
    void raiseProgressed(const ServerReport &report) { Q_EMIT progressed(report); }
    void raiseFinished(const ServerReport &report)
    {
        m_isRunning = false;
        Q_EMIT finished(report);
    }

private:
    bool m_isRunning = false;
};
