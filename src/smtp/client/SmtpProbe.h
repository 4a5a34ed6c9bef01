#pragma once

#include "smtp/ServerProbe.h"
#include "smtp/client/ClientSurroundings.h"

#include <QHostInfo>

class Session;

/// Tries a server out with a session of its own.
class SmtpProbe final : public ServerProbe
{
    Q_OBJECT

public:
    explicit SmtpProbe(const ClientSurroundings &from, QObject *parent = nullptr);

    void begin(const ServerAddress &server) override;
    void giveUp() override;

private:
    void onFound(const QHostInfo &host);
    void onReported();
    [[nodiscard]] ServerReport report() const;

    const ClientSurroundings m_from;
    ServerAddress m_server;
    std::optional<int> m_lookup; ///< the search for the host's addresses
    QStringList m_addresses;
    Session *m_session = nullptr; ///< none before the host is found and when all is over
};
