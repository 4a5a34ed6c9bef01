#include "TestWindowLifecycle.h"

#include "project/WindowLifecycle.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"
#include "support/WorkspaceRig.h"

#include <QTest>

namespace {

const QString SaveTitle = QStringLiteral("Select the file to save:");

struct Rig : WorkspaceRig
{
    /// The server name in the settings; empty when there is none.
    std::string storedServer()
    {
        IOReg reg(store);
        reg.Init(CurrentUserRoot, Settings::Folder);
        std::string server;
        reg.ReadStr(Settings::Server, server);
        return server;
    }
    /// A save that waits for the message in flight of a paused run; returns its path.
    QString saveThatWaits()
    {
        fillForm(3);
        const QString path = folder.filePath(QStringLiteral("paused.svk"));
        w.form.setProjectPath(path);
        startSending();
        w.engine.cmdPausa_Click();
        w.projectCommands.cmdSave_Click();
        return path;
    }
    QString savedProject(const char *name)
    {
        const QString path = folder.filePath(QString::fromLatin1(name));
        w.projectFile.SaveProject(path, [](bool saved) { QVERIFY(saved); });
        return path;
    }

    int endings = 0;
    WindowLifecycle life{w.form,   w.projectCommands, w.projectFile,        w.windowSettings,
                         w.engine, prompts,           [this] { ++endings; }};
};

} // namespace

void TestWindowLifecycle::loadingShowsTheUnnamedProjectAndTheSettings()
{
    Rig before;
    before.w.form.setText(Control::txtServer, QStringLiteral("mail.example.org"));
    before.w.windowSettings.SaveSettings();
    before.w.form.setText(Control::txtServer, {});
    before.life.Form_Load({});
    QCOMPARE(before.w.form.caption(), QStringLiteral("No Name - Sorvanta ver. 2.0"));
    QCOMPARE(before.w.form.text(Control::txtServer), QStringLiteral("mail.example.org"));
    QVERIFY(!before.w.form.projectModified());
}

void TestWindowLifecycle::quotedCommandLinePathWithSpacesIsLoaded()
{
    Rig rig;
    rig.fillForm(2);
    const QString path = rig.savedProject("my club list.svk");
    rig.w.projectCommands.cmdNuovo_Click();
    // As a shell hands it over, cut at the blanks, and as a starter does that keeps the quotes.
    rig.life.Form_Load(projectOfCommandLine((u'"' + path + u'"').split(u' ')));
    QCOMPARE(rig.w.form.projectPath(), path);
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.form.caption(), QStringLiteral("my club list.svk - Sorvanta ver. 2.0"));
}

void TestWindowLifecycle::twoQuotedPathsAreOnePathThatFailsToLoad()
{
    Rig rig;
    rig.fillForm(1);
    const QString path = rig.savedProject("list.svk");
    rig.w.projectCommands.cmdNuovo_Click();
    const QString both =
        projectOfCommandLine({u'"' + path + u'"', QStringLiteral("\"/other.svk\"")});
    QCOMPARE(both, path + QStringLiteral(" /other.svk"));
    rig.life.Form_Load(both);
    QCOMPARE(rig.prompts.takeNoticeTexts(), {QStringLiteral("Unable to load the specified file!")});
    QCOMPARE(rig.w.form.projectPath(), QString());
    QVERIFY(!rig.w.form.projectModified());
}

void TestWindowLifecycle::relativeCommandLinePathIsMadeAbsolute()
{
    QCOMPARE(projectOfCommandLine({QStringLiteral("list.svk")}),
             QDir::current().absoluteFilePath(QStringLiteral("list.svk")));
    QCOMPARE(projectOfCommandLine({}), QString());
}

void TestWindowLifecycle::projectFromTheCommandLineIsNotModified()
{
    Rig rig;
    rig.fillForm(1);
    const QString path = rig.savedProject("list.svk");
    rig.w.projectCommands.cmdNuovo_Click();
    rig.life.Form_Load(path);
    QVERIFY(!rig.w.form.projectModified());
    rig.life.Form_QueryUnload(UnloadMode::User);
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.prompts.questions.isEmpty());
}

void TestWindowLifecycle::pausedProjectFromTheCommandLineStaysPaused()
{
    Rig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    const QString path = rig.savedProject("paused.svk");
    Rig later;
    later.life.Form_Load(path);
    QCOMPARE(later.w.form.runState(), RunState::Paused);
    QCOMPARE(later.w.engine.nextRecipientIndex(), 2);
    QVERIFY(!later.w.form.projectModified());
}

void TestWindowLifecycle::stoppedProjectFromTheCommandLineIsIdle()
{
    Rig rig;
    rig.fillForm(3);
    const QString path = rig.savedProject("list.svk");
    rig.life.Form_Load(path);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QVERIFY(rig.w.form.isEnabled(Control::cmdAvvio));
}

void TestWindowLifecycle::closingAnUnmodifiedProjectAsksNothing()
{
    Rig rig;
    rig.life.Form_QueryUnload(UnloadMode::User);
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.prompts.questions.isEmpty());
}

void TestWindowLifecycle::cancelKeepsTheWindowAndTheEdits()
{
    Rig rig;
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("News"));
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::Cancel);
    rig.life.Form_QueryUnload(UnloadMode::User);
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 0);
    QCOMPARE(rig.w.form.text(Control::txtOggetto), QStringLiteral("News"));
    QVERIFY(rig.w.form.projectModified());
    QCOMPARE(rig.prompts.questions.front().title, QStringLiteral("Save"));
    QCOMPARE(rig.prompts.questions.front().text, QStringLiteral("Save changes before exit?"));
}

void TestWindowLifecycle::noStillSavesTheSettings()
{
    Rig rig;
    rig.w.form.setText(Control::txtServer, QStringLiteral("mail.example.org"));
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::No);
    rig.life.Form_QueryUnload(UnloadMode::User);
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 1);
    QCOMPARE(rig.storedServer(), std::string("mail.example.org"));
}

void TestWindowLifecycle::yesSavesThenCloses()
{
    Rig rig;
    rig.fillForm(1);
    const QString path = rig.savedProject("list.svk");
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("Changed"));
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::Yes);
    rig.life.Form_QueryUnload(UnloadMode::User);
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 1);
    QVERIFY(Rig::contentOf(path).contains("Changed"));
}

void TestWindowLifecycle::abandonedSaveClosesAllTheSame()
{
    Rig rig;
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("News"));
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::Yes);
    rig.prompts.expectFile(SaveTitle, {});
    rig.life.Form_QueryUnload(UnloadMode::User);
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 1);
}

void TestWindowLifecycle::failedSaveKeepsTheWindow()
{
    Rig rig;
    rig.fillForm(1);
    rig.w.form.setProjectPath(rig.folder.filePath(QStringLiteral("gone/list.svk")));
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("Changed"));
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::Yes);
    rig.life.Form_QueryUnload(UnloadMode::User);
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 0);
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
    QVERIFY(rig.w.form.projectModified());
}

void TestWindowLifecycle::endOfTheSessionAsksNothingAndSavesTheSettings()
{
    Rig rig;
    rig.w.form.setText(Control::txtServer, QStringLiteral("mail.example.org"));
    rig.life.Form_QueryUnload(UnloadMode::SessionEnds);
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.prompts.questions.isEmpty());
    QCOMPARE(rig.storedServer(), std::string("mail.example.org"));
}

void TestWindowLifecycle::endOfTheSessionFinishesAWaitingSave()
{
    Rig rig;
    const QString path = rig.saveThatWaits();
    QVERIFY(!QFile::exists(path));
    rig.life.Form_QueryUnload(UnloadMode::SessionEnds);
    QCOMPARE(rig.endings, 1);
    // The message in flight is in doubt: it cannot be sent again.
    QVERIFY(Rig::contentOf(path).startsWith("v2.0\r\npausa\r\n 2 \r\n"));
}

void TestWindowLifecycle::closeWaitsForAWaitingSave()
{
    Rig rig;
    const QString path = rig.saveThatWaits();
    rig.life.Form_QueryUnload(UnloadMode::User);
    Rig::settle();
    QVERIFY(rig.prompts.questions.isEmpty());
    rig.prompts.expectAnswer(Topic::SaveBeforeExit, Answer::No);
    rig.finishMessage();
    Rig::settle();
    rig.prompts.answerAll();
    QCOMPARE(rig.endings, 1);
    QVERIFY(Rig::contentOf(path).contains("Sent"));
}

void TestWindowLifecycle::exitAsksNothingAndSavesNoSettings()
{
    Rig rig;
    rig.w.form.setText(Control::txtServer, QStringLiteral("mail.example.org"));
    rig.life.mnuEsci_Click();
    QCOMPARE(rig.endings, 1);
    QVERIFY(rig.prompts.questions.isEmpty());
    QCOMPARE(rig.storedServer(), std::string());
}

void TestWindowLifecycle::whatElseIsKeptIsKeptBeforeTheEnd()
{
    Rig rig;
    int endingsSeen = -1;
    rig.life.beforeUnload = [&] { endingsSeen = rig.endings; };
    rig.life.Form_QueryUnload(UnloadMode::User);
    QCOMPARE(endingsSeen, 0);
    QCOMPARE(rig.endings, 1);
}
