#include "TestProjectCommands.h"

#include "settings/IOReg.h"
#include "settings/Settings.h"
#include "support/WorkspaceRig.h"

#include <QTest>

namespace {

const QString OpenTitle = QStringLiteral("Select the file to open:");
const QString SaveTitle = QStringLiteral("Select the file to save:");

QString savedProject(WorkspaceRig &rig, const char *name)
{
    const QString path = rig.folder.filePath(QString::fromLatin1(name));
    rig.w.projectFile.SaveProject(path, [](bool saved) { QVERIFY(saved); });
    return path;
}

} // namespace

void TestProjectCommands::newFollowedBySaveAsksForAName()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    savedProject(rig, "first.svk");
    rig.w.form.setProjectModified(false);
    rig.w.projectCommands.cmdNuovo_Click();
    const QString path = rig.folder.filePath(QStringLiteral("second.svk"));
    rig.prompts.expectFile(SaveTitle, path);
    rig.w.projectCommands.cmdSave_Click();
    rig.prompts.answerAll();
    const auto project = decodeProject(QString::fromLatin1(WorkspaceRig::contentOf(path)));
    QVERIFY(project.has_value());
    QCOMPARE(project->server, QStringLiteral("mail.example.org"));
    QCOMPARE(project->senderName, QStringLiteral("The Club"));
    QCOMPARE(project->subject, QString());
    QCOMPARE(rig.w.form.caption(), QStringLiteral("second.svk - Sorvanta ver. 2.0"));
}

void TestProjectCommands::newStoresTheSettings()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.projectCommands.cmdNuovo_Click();
    IOReg reg(rig.store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    std::string server;
    QCOMPARE(reg.ReadStr(Settings::Server, server), 0);
    QCOMPARE(server, std::string("mail.example.org"));
}

void TestProjectCommands::newEmptiesWhatBelongsToTheProject()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    savedProject(rig, "first.svk");
    rig.w.attachments.replaceAll({QStringLiteral("/a.pdf")});
    rig.w.form.setTag(Control::txtDestinatari, QStringLiteral("/members.txt"));
    rig.w.form.setProjectModified(false);
    rig.logged();
    rig.w.projectCommands.cmdNuovo_Click();
    QCOMPARE(rig.w.form.tag(Control::txtEmail), QString());
    QCOMPARE(rig.w.form.text(Control::txtEmail), QString());
    QCOMPARE(rig.w.form.tag(Control::txtDestinatari), QString());
    QCOMPARE(rig.w.form.text(Control::txtOggetto), QString());
    QCOMPARE(rig.w.recipients.count(), 0);
    QVERIFY(rig.w.attachments.paths().isEmpty());
    QCOMPARE(rig.w.form.projectPath(), QString());
    QCOMPARE(rig.w.form.text(Control::txtServer), QStringLiteral("mail.example.org"));
    QCOMPARE(rig.w.form.text(Control::txtNMsg), QStringLiteral("100"));
    QCOMPARE(rig.label(Control::lblSize), QStringLiteral("0.00 KB"));
    QCOMPARE(rig.w.form.caption(), QStringLiteral("No Name - Sorvanta ver. 2.0"));
    QCOMPARE(rig.logged(), QStringList{QStringLiteral("Created a new project")});
}

void TestProjectCommands::newAsksForAModifiedProjectOnly()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.projectCommands.cmdNuovo_Click();
    QVERIFY(rig.prompts.questions.isEmpty());
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeNew, Answer::No);
    rig.w.projectCommands.cmdNuovo_Click();
    rig.prompts.answerAll();
    const Question question = rig.prompts.questions.last();
    QCOMPARE(question.text, QStringLiteral("Save changes before create a new project?"));
    QCOMPARE(question.title, QStringLiteral("Save"));
    QVERIFY(question.buttons == Buttons::YesNoCancel);
    QVERIFY(question.icon == Icon::Exclamation);
}

void TestProjectCommands::cancelAbandonsNew()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeNew, Answer::Cancel);
    rig.w.projectCommands.cmdNuovo_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.recipients.count(), 1);
}

void TestProjectCommands::aSaveThatFailsEndsNew()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.w.form.setProjectPath(rig.folder.filePath(QStringLiteral("none/p.svk")));
    rig.prompts.expectAnswer(Topic::SaveBeforeNew, Answer::Yes);
    rig.w.projectCommands.cmdNuovo_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.recipients.count(), 1);
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
}

void TestProjectCommands::anAbandonedSaveLetsNewGoOn()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeNew, Answer::Yes);
    rig.prompts.expectFile(SaveTitle, {});
    rig.w.projectCommands.cmdNuovo_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.recipients.count(), 0);
}

void TestProjectCommands::cancellingSaveAsKeepsTheName()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.projectCommands.UpdateCaption();
    rig.prompts.expectFile(SaveTitle, {});
    rig.w.projectCommands.cmdSave_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.caption(), QStringLiteral("No Name - Sorvanta ver. 2.0"));
    QCOMPARE(rig.w.form.projectPath(), QString());
}

void TestProjectCommands::saveAsAsksBeforeItOverwrites()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.prompts.expectFile(SaveTitle, {});
    rig.w.projectCommands.cmdSaveAs_Click();
    rig.prompts.answerAll();
    const FileDialog dialog = rig.prompts.fileDialogs.last();
    QVERIFY(dialog.kind == FileDialog::Kind::Save);
    QVERIFY(dialog.asksBeforeOverwriting);
    QCOMPARE(dialog.filter, QStringLiteral("Sorvanta File (*.svk)|*.svk"));
    QCOMPARE(dialog.defaultExtension, QStringLiteral("svk"));
}

void TestProjectCommands::saveAsThatFailsKeepsTheOldPath()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    const QString path = savedProject(rig, "first.svk");
    rig.w.projectCommands.UpdateCaption();
    rig.prompts.expectFile(SaveTitle, rig.folder.filePath(QStringLiteral("none/p.svk")));
    rig.w.projectCommands.cmdSaveAs_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.projectPath(), path);
    QCOMPARE(rig.w.form.caption(), QStringLiteral("first.svk - Sorvanta ver. 2.0"));
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
}

void TestProjectCommands::savingDoesNotClearTheModifiedFlag()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    savedProject(rig, "first.svk");
    rig.w.form.setProjectModified(true);
    rig.w.projectCommands.cmdSave_Click();
    QVERIFY(rig.w.form.projectModified());
}

void TestProjectCommands::openAsksWithItsOwnText()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeOpen, Answer::Cancel);
    rig.w.projectCommands.cmdApri_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions.last().text,
             QStringLiteral("Save changes before open another project?"));
    QVERIFY(rig.prompts.fileDialogs.isEmpty());
}

void TestProjectCommands::theOpenDialogIsTheSystemsOwn()
{
    WorkspaceRig rig;
    rig.prompts.expectFile(OpenTitle, {});
    rig.w.projectCommands.cmdApri_Click();
    rig.prompts.answerAll();
    const FileDialog dialog = rig.prompts.fileDialogs.last();
    QVERIFY(dialog.kind == FileDialog::Kind::Open);
    QCOMPARE(dialog.filter, QStringLiteral("Sorvanta file (*.svk)|*.svk|All files (*.*)|*.*"));
    QCOMPARE(dialog.defaultExtension, QStringLiteral("svk"));
    QCOMPARE(dialog.initialFolder, QString());
}

void TestProjectCommands::cancellingTheOpenDialogChangesNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.prompts.expectFile(OpenTitle, {});
    rig.w.projectCommands.cmdApri_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.recipients.count(), 1);
    QVERIFY(!rig.w.form.projectModified());
}

void TestProjectCommands::openingAProjectStopsAPausedRunAfterTheLoad()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.w.form.setText(Control::txtControl, QStringLiteral("a3@example.net"));
    const QString path = savedProject(rig, "first.svk");
    rig.start();
    rig.w.engine.cmdPausa_Click();
    rig.logged();
    QCOMPARE(rig.w.projectCommands.open(path), LoadOutcome::Loaded);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    // The last row is the control address, but no run appended it to this project.
    QCOMPARE(rig.w.recipients.count(), 3);
    QCOMPARE(rig.logged(), (QStringList{QStringLiteral("Project file '%1' loaded").arg(path),
                                        QStringLiteral("Sending procedure stopped")}));
}

void TestProjectCommands::openingAPausedProjectReplacesAPausedRun()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.finishMessage();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    const QString path = savedProject(rig, "paused.svk");
    QCOMPARE(rig.w.projectCommands.open(path), LoadOutcome::LoadedPaused);
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 3);
}

void TestProjectCommands::aRefusedFileLeavesThePausedRun()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.start();
    rig.w.engine.cmdPausa_Click();
    const QString bad = rig.file(QStringLiteral("bad.svk"), "v1.0\r\n");
    QCOMPARE(rig.w.projectCommands.open(bad), LoadOutcome::Refused);
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
}

void TestProjectCommands::theCaptionNamesTheProject_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("caption");
    const QString rest = QStringLiteral(" - Sorvanta ver. 2.0");
    QTest::newRow("none") << QString() << QStringLiteral("No Name") + rest;
    QTest::newRow("a Windows path")
        << QStringLiteral("C:\\news\\mailing.svk") << QStringLiteral("mailing.svk") + rest;
    QTest::newRow("a native path")
        << QStringLiteral("/home/club/mailing.svk") << QStringLiteral("mailing.svk") + rest;
    QTest::newRow("a name alone") << QStringLiteral("mailing.svk")
                                  << QStringLiteral("mailing.svk") + rest;
}

void TestProjectCommands::theCaptionNamesTheProject()
{
    QFETCH(QString, path);
    WorkspaceRig rig;
    rig.w.form.setProjectPath(path);
    rig.w.projectCommands.UpdateCaption();
    QTEST(rig.w.form.caption(), "caption");
}

void TestProjectCommands::commandsAreRefusedDuringARun()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.w.projectCommands.cmdNuovo_Click();
    rig.w.projectCommands.cmdApri_Click();
    rig.w.projectCommands.cmdSave_Click();
    rig.w.projectCommands.cmdSaveAs_Click();
    QCOMPARE(rig.prompts.openBoxes(), 0);
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.form.runState(), RunState::Sending);
}
