#pragma once

#include "base/CodePage.h"
#include "base/Language.h"
#include "base/RegionalFormats.h"
#include "project/Workspace.h"
#include "settings/RegFileStore.h"
#include "smtp/client/SmtpClient.h"
#include "ui/DesktopShell.h"
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
    SmtpClient SMTP;
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    WindowPrompts prompts;
    DesktopShell shell;
    Workspace workspace;
    std::unique_ptr<frmMain> window;
};
