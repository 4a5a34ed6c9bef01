#include "app/Program.h"

#include "base/HelpPages.h"
#include "base/Host.h"
#include "base/ProgramFolder.h"
#include "ui/RunNotification.h"

#include <QCoreApplication>

Program::Program(Language language, std::function<void()> endProcess)
    : folder(programFolder()),
      AppLog(folder, clock, formats, codePage),
      connections({clock, settings, codePage, prompts, &prompts, folder}),
      workspace({language, prompts, AppLog, settings, connections.SMTP, clock, formats, codePage,
                 Timer, Timer2, folder, computerName()}),
      journal({workspace.form, workspace.recipients, workspace.engine, workspace.projectFile,
               prompts, AppLog, clock, codePage, sync, folder}),
      recovery(journal, workspace.projectCommands, workspace.form, prompts),
      trial({workspace.form, workspace.recipients, workspace.reader, workspace.filler,
             connections.trialSMTP, connections.trialSMTP}),
      testMessage(trial),
      probe(connections.newProbe()),
      preflight({workspace.form, workspace.recipients, workspace.attachments, workspace.reader,
                 trial, *probe}),
      runBar(workspace.form, workspace.recipients, workspace.recipientCommands),
      reports(workspace.form, workspace.recipients, clock, prompts, AppLog),
      runSeen(workspace.form, [this] { journal.rowsSeen(); }),
      certificateQuestion(connections.SMTP, connections.accounts, prompts, formats),
      sleepInhibitor(workspace.form)
{
    const WindowParts parts{workspace,
                            prompts,
                            shell,
                            codePage,
                            formats,
                            connections.accounts,
                            connections.keyring,
                            [this] { return connections.newProbe(); },
                            Connections::traceFileIn(folder),
                            preflight,
                            testMessage,
                            journal,
                            recovery,
                            runBar,
                            reports,
                            folder,
                            folderOfHelp(folder, QCoreApplication::applicationDirPath()),
                            std::move(endProcess),
                            WindowPlace::defaultFile()};
    if (language == Language::Italian)
        window = std::make_unique<frmMainIta>(parts);
    else
        window = std::make_unique<frmMain>(parts);
    prompts.setWindow(window.get());
    // It goes with the window.
    new RunNotification(workspace.engine, workspace.recipients, language, *window);
    // Questions about a project or a run that is gone close by themselves, once the procedure that
    // ended it is through.
    const auto closeStale = [this](auto signal) {
        QObject::connect(&workspace.form, signal, &prompts, &WindowPrompts::closeStale,
                         Qt::QueuedConnection);
    };
    closeStale(&Form::situationChanged);
    closeStale(&Form::runStateChanged);
}
