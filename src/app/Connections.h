#pragma once

#include "account/Accounts.h"
#include "account/Keyring.h"
#include "account/LoginChain.h"
#include "account/TraceFile.h"
#include "smtp/ServerProbe.h"
#include "smtp/client/SmtpClient.h"

#include <memory>
#include <optional>

/// What the connections of a program are made with.
struct ConnectionParts
{
    const Clock &clock;
    SettingsStore &settings;
    const CodePage &codePage;
    Prompts &prompts;
    LoginPrompt *loginPrompt; ///< nullptr: there is nobody to ask
    QString programFolder;
    QString passwordCommand = {};                ///< prints the password; empty: none
    std::optional<QString> traceOfAllHosts = {}; ///< where every dialogue is taken down
};

/// Everything that talks to servers, and what it goes by: the clients of the runs and of the
/// trials, probes, and where their logins come from.
class Connections
{
public:
    explicit Connections(const ConnectionParts &parts);

    /// The trace of the servers whose account asks for one.
    [[nodiscard]] static QString traceFileIn(const QString &programFolder);
    /// One for each of those who try servers out: its signals are for them alone. It must not
    /// outlive the connections.
    [[nodiscard]] std::unique_ptr<ServerProbe> newProbe() const;

    Accounts accounts;
    Keyring keyring;
    LoginChain logins;
    TraceFile trace;

private:
    ClientSurroundings m_surroundings;

public:
    SmtpClient SMTP;
    SmtpClient trialSMTP;
};
