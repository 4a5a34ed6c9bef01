#pragma once

#include "support/FakeShell.h"
#include "support/ItalianTexts.h"
#include "support/WorkspaceRig.h"
#include "ui/frmMain.h"

#include <QApplication>

#include <memory>
#include <optional>

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
        const WindowParts parts{core->w,
                                core->prompts,
                                shell,
                                core->codePage,
                                core->folder.path(),
                                core->folder.path(),
                                [this] { ++endings; },
                                core->folder.filePath(QStringLiteral("window.ini"))};
        if (language == Language::Italian)
            window = std::make_unique<frmMainIta>(parts);
        else
            window = std::make_unique<frmMain>(parts);
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
    std::unique_ptr<frmMain> window;
    int endings = 0; ///< how often the process would have ended

private:
    std::optional<ItalianTexts> m_italian;
};

using WindowRig = WindowRigWith<ScriptedPrompts>;
