#pragma once

#include "support/FakeComposer.h"
#include "support/FakeDiskSync.h"
#include "support/FakePasswordStore.h"
#include "support/FakeProbe.h"
#include "support/FakeShell.h"
#include "support/ItalianTexts.h"
#include "support/WorkspaceRig.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QPointer>

#include <memory>
#include <optional>

/// What a window needs beside the workspace: accounts, and a client and probes of their own for
/// what is done outside runs.
template <typename PromptsType>
struct SideParts
{
    explicit SideParts(RigWith<PromptsType> &core)
        : accounts(core.store, core.codePage),
          trial({core.w.form, core.w.recipients, core.w.reader, core.w.filler, trialClient,
                 composer}),
          test(trial),
          preflight(
              {core.w.form, core.w.recipients, core.w.attachments, core.w.reader, trial, probe}),
          journal({core.w.form, core.w.recipients, core.w.engine, core.w.projectFile, core.prompts,
                   core.log, core.clock, core.codePage, sync, core.folder.path()}),
          recovery(journal, core.w.projectCommands, core.w.form, core.prompts),
          bar(core.w.form, core.w.recipients, core.w.recipientCommands),
          reports(core.w.form, core.w.recipients, core.clock, core.prompts, core.log)
    {}

    Accounts accounts;
    FakePasswordStore passwords;
    FakeSmtp trialClient;
    FakeComposer composer{trialClient};
    FakeProbe probe; ///< of the preflight
    TrialMessage trial;
    TestMessage test;
    Preflight preflight;
    FakeDiskSync sync;
    RunJournal journal;
    Recovery recovery;
    RunBar bar;
    ReportCommands reports;
    QList<QPointer<FakeProbe>> probes; ///< of the pages of accounts, in order
};

/// A main window in one of the languages, on a workspace whose client, clock, timers, desktop and
/// prompts do what the test says. Widgets are found by their names.
template <typename PromptsType>
class WindowRigWith
{
public:
    explicit WindowRigWith(Language language = Language::English)
    {
        if (language == Language::Italian)
            m_italian.emplace();
        core.emplace(language);
        side.emplace(*core);
        if (language == Language::Italian)
            window = std::make_unique<frmMainIta>(parts());
        else
            window = std::make_unique<frmMain>(parts());
    }

    /// What the window is made of.
    [[nodiscard]] WindowParts parts()
    {
        return {core->w,
                core->prompts,
                shell,
                core->codePage,
                core->formats,
                side->accounts,
                side->passwords,
                [this] {
                    auto probe = std::make_unique<FakeProbe>();
                    side->probes.append(probe.get());
                    return probe;
                },
                core->folder.filePath(QStringLiteral("SMTP trace.txt")),
                side->preflight,
                side->test,
                side->journal,
                side->recovery,
                side->bar,
                side->reports,
                core->folder.path(),
                core->folder.path(),
                [this] { ++endings; },
                core->folder.filePath(QStringLiteral("window.ini"))};
    }

    /// Loads the window and shows it on the (invisible) screen.
    void show(const QString &projectPath = {})
    {
        window->Form_Load(projectPath);
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    template <typename Widget>
    [[nodiscard]] Widget &get(const char *name)
    {
        auto *const found = window->findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("the window has no %s of that kind", name);
        return *found;
    }

    FakeShell shell;
    std::optional<RigWith<PromptsType>> core;
    std::optional<SideParts<PromptsType>> side;
    std::unique_ptr<frmMain> window;
    int endings = 0; ///< how often the process would have ended

private:
    std::optional<ItalianTexts> m_italian;
};

using WindowRig = WindowRigWith<ScriptedPrompts>;
