#include "app/Program.h"

#include "base/HelpPages.h"
#include "base/Host.h"
#include "base/ProgramFolder.h"
#include "smtp/client/HostName.h"

#include <QCoreApplication>

Program::Program(Language language, std::function<void()> endProcess)
    : folder(programFolder()),
      AppLog(folder, clock, formats, codePage),
      SMTP(clock, {}, ownHostName()),
      workspace({language, prompts, AppLog, settings, SMTP, clock, formats, codePage, Timer, Timer2,
                 folder, computerName()})
{
    const WindowParts parts{workspace,
                            prompts,
                            shell,
                            codePage,
                            folder,
                            folderOfHelp(folder, QCoreApplication::applicationDirPath()),
                            std::move(endProcess),
                            WindowPlace::defaultFile()};
    if (language == Language::Italian)
        window = std::make_unique<frmMainIta>(parts);
    else
        window = std::make_unique<frmMain>(parts);
    prompts.setWindow(window.get());
    // Questions about a project or a run that is gone close by themselves, once the procedure that
    // ended it is through.
    const auto closeStale = [this](auto signal) {
        QObject::connect(&workspace.form, signal, &prompts, &WindowPrompts::closeStale,
                         Qt::QueuedConnection);
    };
    closeStale(&Form::situationChanged);
    closeStale(&Form::runStateChanged);
}
