#pragma once

#include "cli/ExitCode.h"

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <optional>
#include <variant>

struct SendOptions
{
    QString project;
    bool yes = false;   ///< go on although linked pictures will not travel
    bool save = false;  ///< write rows and states back after the run
    bool rest = false;  ///< leave out the rows that were sent or are in doubt
    bool again = false; ///< send to them again
    bool json = false;
};

struct CheckOptions
{
    QString project;
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

using Command = std::variant<SendOptions, CheckOptions, ComposeOptions, SettingsOptions>;

/// Why there is no command to run: help that was asked for (Success), or wrong usage.
struct NoCommand
{
    QString text;
    ExitCode exitCode = ExitCode::Refused;
};

/// Understands the arguments, the program's name first. Paths come out absolute.
[[nodiscard]] tl::expected<Command, NoCommand> parseCommandLine(const QStringList &arguments);
