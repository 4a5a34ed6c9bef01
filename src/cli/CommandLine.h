#pragma once

#include "cli/ExitCode.h"
#include "smtp/ServerAddress.h"

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <optional>
#include <variant>

/// What the commands that talk to a server have in common.
struct ConnectionOptions
{
    std::optional<QString> passwordCommand; ///< prints the password; nobody else is asked for it
    std::optional<QString> traceFile;       ///< takes the dialogue down
};

struct SendOptions
{
    QString project;
    bool yes = false;   ///< go on although linked pictures will not travel
    bool save = false;  ///< write rows and states back after the run
    bool rest = false;  ///< leave out the rows that were sent or are in doubt
    bool again = false; ///< send to them again
    bool goOn = false;  ///< with the run that stands still: paused, or left behind
    bool json = false;
    std::optional<QString> report; ///< the file that takes the report of the run
    ConnectionOptions connection = {};
};

struct CheckOptions
{
    QString project;
    bool offline = false; ///< asks no server
    ConnectionOptions connection = {};
};

struct TestOptions
{
    QString project;
    std::optional<QString> to; ///< instead of the sender's own address
    std::optional<int> row;    ///< instead of the first
    ConnectionOptions connection = {};
};

struct ServerOptions
{
    ServerAddress server;
    ConnectionOptions connection = {};
};

struct AccountOptions
{
    QString host;
    std::optional<QString> name;
    std::optional<QString> value;
};

struct ComposeOptions
{
    QString project;
    int row = 0;
};

struct SettingsOptions
{
    std::optional<QString> name;
    std::optional<QString> value;
};

using Command = std::variant<SendOptions, CheckOptions, TestOptions, ComposeOptions, ServerOptions,
                             AccountOptions, SettingsOptions>;

/// Why there is no command to run: help that was asked for (Success), or wrong usage.
struct NoCommand
{
    QString text;
    ExitCode exitCode = ExitCode::Refused;
};

/// Understands the arguments, the program's name first. Paths come out absolute.
[[nodiscard]] tl::expected<Command, NoCommand> parseCommandLine(const QStringList &arguments);
