#pragma once

#include "smtp/client/ClientSurroundings.h"

#include <QHash>
#include <QStringList>

#include <optional>

/// Is asked for logins and answers when the test says so.
class FakeLogins : public LoginSource
{
public:
    QStringList events; ///< "asked", "accepted anna", "refused anna", in order
    LoginRequest request;
    int dropped = 0; ///< how often requests were said to be stale

    [[nodiscard]] bool isAsked() const { return m_then != nullptr; }
    void answer(const LoginAnswer &answer) { std::exchange(m_then, nullptr)(answer); }

    void find(const LoginRequest &wanted, std::function<void(LoginAnswer)> then) override
    {
        request = wanted;
        events += wanted.refusal.isEmpty() ? QStringLiteral("asked")
                                           : QStringLiteral("asked again: ") + wanted.refusal;
        m_then = std::move(then);
    }
    void dropStale() override { ++dropped; }
    void accepted(const ServerAddress &, const Login &login) override
    {
        events += QStringLiteral("accepted ") + login.user;
    }
    void refused(const ServerAddress &, const Login &login) override
    {
        events += QStringLiteral("refused ") + login.user;
    }

private:
    std::function<void(LoginAnswer)> m_then;
};

/// Knows one account, whatever the host.
class FakeAccounts : public ServerAccounts
{
public:
    ServerAccount known;

    [[nodiscard]] ServerAccount account(const QString &) const override { return known; }
    void rememberStartTls(const ServerAddress &server) override
    {
        if (!known.startTlsPorts.contains(server.port))
            known.startTlsPorts += server.port;
    }
};

/// Keeps the dialogue as lines: "C: QUIT", "S: 221 bye", "-- connecting".
class KeptTrace : public ProtocolTrace
{
public:
    bool isWanted = true;
    QStringList lines;

    [[nodiscard]] bool wants(const QString &) const override { return isWanted; }
    void line(const ServerAddress &, Speaker speaker, const QString &text) override
    {
        static const QHash<Speaker, QString> Marks = {{Speaker::Client, QStringLiteral("C: ")},
                                                      {Speaker::Server, QStringLiteral("S: ")},
                                                      {Speaker::Note, QStringLiteral("-- ")}};
        lines += Marks.value(speaker) + text;
    }
};

/// What a client works with, under the test's control.
struct ClientFakes
{
    FakeLogins logins;
    FakeAccounts accounts;
    KeptTrace trace;

    [[nodiscard]] ClientSurroundings surroundings(const Limits &limits = {},
                                                  const WellKnownPorts &ports = {},
                                                  const QString &hostName = {})
    {
        return {logins, accounts, trace, hostName, limits, ports};
    }
};
