#pragma once

#include "account/Accounts.h"
#include "account/PasswordStore.h"
#include "base/RegionalFormats.h"
#include "base/Shell.h"
#include "journal/Recovery.h"
#include "journal/ReportCommands.h"
#include "journal/RunBar.h"
#include "preflight/Preflight.h"
#include "preflight/TestMessage.h"
#include "project/Workspace.h"
#include "smtp/ServerProbe.h"

#include <functional>
#include <memory>

/// What a main window works with. All of it outlives the window.
struct WindowParts
{
    Workspace &workspace;
    Prompts &prompts;
    Shell &shell;
    const CodePage &codePage;
    const RegionalFormats &formats;
    Accounts &accounts;
    PasswordStore &passwords;
    /// A new probe: each page of an account tries its server out with one of its own.
    std::function<std::unique_ptr<ServerProbe>()> newProbe;
    /// Where protocol traces go.
    QString traceFile;
    Preflight &preflight;
    TestMessage &testMessage;
    RunJournal &journal;
    Recovery &recovery;
    RunBar &runBar;
    ReportCommands &reports;
    QString programFolder;
    /// The folder that holds the help pages.
    QString helpFolder;
    /// Ends the process at once.
    std::function<void()> endProcess;
    /// Where the window's size is kept.
    QString placeFile;
};
