#pragma once

#include "account/CertificateQuestion.h"
#include "app/Connections.h"
#include "base/CodePage.h"
#include "base/Language.h"
#include "base/RegionalFormats.h"
#include "journal/Recovery.h"
#include "journal/ReportCommands.h"
#include "journal/RunBar.h"
#include "preflight/Preflight.h"
#include "preflight/TestMessage.h"
#include "preflight/TrialMessage.h"
#include "project/Workspace.h"
#include "settings/RegFileStore.h"
#include "ui/DesktopShell.h"
#include "ui/RunSeen.h"
#include "ui/SleepInhibitor.h"
#include "ui/WindowPrompts.h"
#include "ui/frmMain.h"

#include <functional>
#include <memory>

/// The desktop program: everything that lives as long as its main window, wired together.
class Program
{
public:
    /// endProcess ends the process at once.
    Program(Language language, std::function<void()> endProcess);

    SystemClock clock;
    SystemFormats formats;
    CodePage codePage = CodePage::ofSystem();
    QString folder;
    RegFileStore settings{RegFileStore::defaultFile()};
    CLog AppLog;
    WindowPrompts prompts;
    Connections connections;
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    DesktopShell shell;
    Workspace workspace;
    GroupedSync sync;
    RunJournal journal;
    Recovery recovery;
    TrialMessage trial;
    TestMessage testMessage;
    std::unique_ptr<ServerProbe> probe;
    Preflight preflight;
    RunBar runBar;
    ReportCommands reports;
    RunSeen runSeen;
    CertificateQuestion certificateQuestion;
    SleepInhibitor sleepInhibitor;
    std::unique_ptr<frmMain> window;
};
