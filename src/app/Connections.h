#pragma once

#include "account/Accounts.h"
#include "account/Keyring.h"
#include "account/LoginChain.h"
#include "account/TraceFile.h"
#include "smtp/client/SmtpClient.h"
#include "smtp/client/SmtpProbe.h"

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
/// trials, two probes, and where their logins come from.
class Connections
{
public:
    explicit Connections(const ConnectionParts &parts);

    /// The trace of the servers whose account asks for one.
    [[nodiscard]] static QString traceFileIn(const QString &programFolder);

    Accounts accounts;
    Keyring keyring;
    LoginChain logins;
    TraceFile trace;

private:
    ClientSurroundings m_surroundings;

public:
    SmtpClient SMTP;
    SmtpClient trialSMTP;
    SmtpProbe probe;
    SmtpProbe preflightProbe;
};
