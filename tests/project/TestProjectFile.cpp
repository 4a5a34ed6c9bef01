#include "TestProjectFile.h"

#include "support/FileSizeLimit.h"
#include "support/WorkspaceRig.h"

#include <QDir>
#include <QTest>

namespace {

const QString Waiting = QStringLiteral("Waiting");
const QString Sending = QStringLiteral("Sending...");
const QString Sent = QStringLiteral("Sent");
const QString Error = QStringLiteral("Error!");
const QString UnableToLoad = QStringLiteral("Unable to load the specified file!");

// Whether the project was saved at once.
bool save(WorkspaceRig &rig, const QString &path)
{
    const auto result = std::make_shared<bool>(false);
    rig.w.projectFile.SaveProject(path, [result](bool saved) { *result = saved; });
    return *result;
}

QString projectPath(const WorkspaceRig &rig)
{
    return rig.folder.filePath(QStringLiteral("mailing.svk"));
}

QStringList linesOf(const QString &path)
{
    return QString::fromLatin1(WorkspaceRig::contentOf(path)).split(QStringLiteral("\r\n"));
}

// A run of four rows that was paused while the first message was in flight.
void pauseInFlight(WorkspaceRig &rig)
{
    rig.fillForm(4);
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
}

ProjectData dataOf(const QString &path)
{
    const auto project = decodeProject(QString::fromLatin1(WorkspaceRig::contentOf(path)));
    if (!project)
        QTest::qFail("the saved file is no project", __FILE__, __LINE__);
    return project.value_or(ProjectData());
}

// What is saved in a pause while a message is in flight, once that has happened to it.
template <typename Event>
ProjectData savedInFlight(Event event)
{
    WorkspaceRig rig;
    pauseInFlight(rig);
    rig.w.projectFile.SaveProject(projectPath(rig), [](bool) {});
    event(rig);
    return dataOf(projectPath(rig));
}

QStringList statesOf(const ProjectData &project)
{
    QStringList states;
    for (const Recipient &row : project.recipients)
        states.append(row.state);
    return states;
}

} // namespace

void TestProjectFile::aSavedProjectIsLoadedBack()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.uncheck(2);
    rig.w.form.setChecked(Control::chkRicevuta, true);
    rig.w.attachments.replaceAll({QStringLiteral("/a.pdf"), QStringLiteral("/a.pdf")});
    QVERIFY(save(rig, projectPath(rig)));
    WorkspaceRig other;
    QCOMPARE(other.w.projectFile.LoadProject(projectPath(rig)), LoadOutcome::Loaded);
    for (const Control box : {Control::txtServer, Control::txtMittente, Control::txtEmailMittente,
                              Control::txtOggetto, Control::txtNMsg, Control::txtPausa})
        QCOMPARE(other.w.form.text(box), rig.w.form.text(box));
    QCOMPARE(other.w.form.tag(Control::txtEmail), rig.w.form.tag(Control::txtEmail));
    QVERIFY(other.w.form.isChecked(Control::chkRicevuta));
    QVERIFY(!other.w.form.isChecked(Control::chkMultiSend));
    QCOMPARE(other.w.attachments.paths(), rig.w.attachments.paths());
    QCOMPARE(other.w.recipients.count(), 2);
    QCOMPARE(other.w.recipients.at(1).name, QStringLiteral("Name 1"));
    QVERIFY(!other.w.recipients.at(2).checked);
    QCOMPARE(other.w.form.projectPath(), projectPath(rig));
    QVERIFY(other.w.form.projectModified());
    QCOMPARE(other.label(Control::lblTrascorso), QStringLiteral("--:--"));
}

void TestProjectFile::loadingShowsShortenedPathsAndKeepsFullOnes()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    const QString longPath = QStringLiteral("C:\\") + QStringLiteral("folder\\").repeated(12) +
                             QStringLiteral("members.txt");
    rig.w.form.setTag(Control::txtDestinatari, longPath);
    QVERIFY(save(rig, projectPath(rig)));
    rig.w.projectFile.LoadProject(projectPath(rig));
    QCOMPARE(rig.w.form.tag(Control::txtDestinatari), longPath);
    QVERIFY(rig.w.form.text(Control::txtDestinatari).size() <= 60);
    QVERIFY(rig.w.form.text(Control::txtDestinatari).startsWith(QStringLiteral("C:\\...\\")));
}

void TestProjectFile::loadingIsLoggedBeforeTheSizeIsComputed()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<p>Hello</p>");
    QVERIFY(save(rig, projectPath(rig)));
    rig.logged();
    rig.w.projectFile.LoadProject(projectPath(rig));
    QCOMPARE(
        rig.logged(),
        (QStringList{
            QStringLiteral("Project file '%1' loaded").arg(projectPath(rig)),
            QStringLiteral("Message file '%1' loaded").arg(rig.w.form.tag(Control::txtHTML))}));
    QCOMPARE(rig.label(Control::lblSize), QStringLiteral("0.03 KB"));
}

void TestProjectFile::savingIsLogged()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.logged();
    QVERIFY(save(rig, projectPath(rig)));
    QCOMPARE(rig.logged(),
             QStringList{QStringLiteral("Project file '%1' saved").arg(projectPath(rig))});
}

void TestProjectFile::aFailedSaveLeavesTheOldFile()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    QVERIFY(save(rig, projectPath(rig)));
    // A folder of the file's name cannot be replaced, and neither can a file in no folder.
    QDir(rig.folder.path()).mkpath(QStringLiteral("taken.svk/inside"));
    rig.logged();
    for (const char *name : {"taken.svk", "none/p.svk"}) {
        const QString path = rig.folder.filePath(QString::fromLatin1(name));
        QVERIFY(!save(rig, path));
        const QList<Notice> notices = rig.prompts.takeNotices();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices.front().title, QStringLiteral("Save"));
        QVERIFY(notices.front().icon == Icon::Critical);
        QVERIFY(notices.front().text.startsWith(path + QStringLiteral(": ")));
    }
    QCOMPARE(rig.w.form.projectPath(), projectPath(rig));
    QCOMPARE(rig.logged(), QStringList());
}

void TestProjectFile::aFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<bool>("paused");
    QTest::newRow("without a run") << false;
    QTest::newRow("in a pause") << true;
}

void TestProjectFile::aFullDiskLeavesTheOldFile()
{
    QFETCH(bool, paused);
    WorkspaceRig rig;
    rig.fillForm(3);
    QVERIFY(save(rig, projectPath(rig)));
    const QByteArray before = WorkspaceRig::contentOf(projectPath(rig));
    if (paused) {
        rig.startSending();
        rig.w.engine.cmdPausa_Click();
        rig.finishMessage();
    } else {
        rig.w.form.setText(Control::txtOggetto, QStringLiteral("News of May"));
    }
    const QString elsewhere = rig.folder.filePath(QStringLiteral("elsewhere.svk"));
    QVERIFY(save(rig, elsewhere));
    const QByteArray wanted = WorkspaceRig::contentOf(elsewhere);
    QVERIFY(wanted != before);
    rig.logged();
    forEachFullDisk(wanted.size(), [&](rlim_t room) {
        const bool saved = [&] {
            const FileSizeLimit full(room);
            return save(rig, projectPath(rig));
        }();
        QVERIFY(!saved);
        QCOMPARE(rig.prompts.takeNoticeTexts(),
                 QStringList{projectPath(rig) + QStringLiteral(": File too large")});
        QCOMPARE(WorkspaceRig::contentOf(projectPath(rig)), before);
        QCOMPARE(rig.w.form.projectPath(), elsewhere);
    });
    QCOMPARE(rig.logged(), QStringList());
    QVERIFY(save(rig, projectPath(rig)));
    QCOMPARE(WorkspaceRig::contentOf(projectPath(rig)), wanted);
}

void TestProjectFile::textBeyondTheCodePageIsSavedAsUtf8()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    const QString name = QStringLiteral("Łukasz Καλημέρα");
    rig.w.form.setText(Control::txtMittente, name);
    QVERIFY(save(rig, projectPath(rig)));
    rig.w.form.setText(Control::txtMittente, {});
    rig.w.projectFile.LoadProject(projectPath(rig));
    QCOMPARE(rig.w.form.text(Control::txtMittente), name);
}

void TestProjectFile::textOfTheCodePageIsSavedInIt()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtMittente, QStringLiteral("Società è €"));
    QVERIFY(save(rig, projectPath(rig)));
    QVERIFY(WorkspaceRig::contentOf(projectPath(rig)).contains("Societ\xE0 \xE8 \x80\r\n"));
}

void TestProjectFile::aFileThatIsNoProjectIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("an earlier format") << QByteArray("v1.9\r\nstop\r\n");
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\x00\x00\x01\xff\xfe",
                                          9);
    QTest::newRow("only the tag") << QByteArray("v2.0\r\n");
}

void TestProjectFile::aFileThatIsNoProjectIsRefused()
{
    QFETCH(QByteArray, content);
    WorkspaceRig rig;
    rig.fillForm(2);
    QVERIFY(save(rig, projectPath(rig)));
    rig.logged();
    const QString other = rig.file(QStringLiteral("other.svk"), content);
    const Situation before = rig.w.form.situation();
    QCOMPARE(rig.w.projectFile.LoadProject(other), LoadOutcome::Refused);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().text, UnableToLoad);
    QCOMPARE(notices.front().title, QStringLiteral("Open"));
    QVERIFY(notices.front().icon == Icon::Critical);
    QVERIFY(notices.front().detail.startsWith(other));
    QCOMPARE(rig.w.form.projectPath(), projectPath(rig));
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.form.situation(), before);
    QCOMPARE(rig.logged(), QStringList());
}

void TestProjectFile::aFileThatOnlyBeginsAsUtf8IsRefused()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    QVERIFY(save(rig, projectPath(rig)));
    QByteArray content = "\xEF\xBB\xBF" + WorkspaceRig::contentOf(projectPath(rig));
    const QString other = rig.file(QStringLiteral("other.svk"), content);
    QCOMPARE(rig.w.projectFile.LoadProject(other), LoadOutcome::Loaded);
    content.replace("The Club", "Zo\xEB");
    rig.file(QStringLiteral("other.svk"), content);
    rig.w.projectFile.LoadProject(projectPath(rig));
    QCOMPARE(rig.w.projectFile.LoadProject(other), LoadOutcome::Refused);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().text, UnableToLoad);
    QCOMPARE(notices.front().detail,
             other + QStringLiteral(": it begins as UTF-8 and goes on otherwise"));
    QCOMPARE(rig.w.form.projectPath(), projectPath(rig));
    QCOMPARE(rig.w.form.text(Control::txtMittente), QStringLiteral("The Club"));
    rig.w.projectCommands.cmdSave_Click();
    QCOMPARE(WorkspaceRig::contentOf(other), content);
}

void TestProjectFile::aFileCutInsideARecipientLosesItsName()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    QVERIFY(save(rig, projectPath(rig)));
    const QByteArray whole = WorkspaceRig::contentOf(projectPath(rig));
    const QByteArray content = whole.first(whole.lastIndexOf("a3@example.net"));
    const QString cut = rig.file(QStringLiteral("cut.svk"), content);
    rig.logged();
    QCOMPARE(rig.w.projectFile.LoadProject(cut), LoadOutcome::LoadedInPart);
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{UnableToLoad});
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.form.projectPath(), QString());
    QCOMPARE(rig.logged(), QStringList());
    // Save has to ask for a name.
    rig.prompts.expectFile(QStringLiteral("Select the file to save:"), {});
    rig.w.projectCommands.cmdSave_Click();
    rig.prompts.answerAll();
    QCOMPARE(WorkspaceRig::contentOf(cut), content);
}

void TestProjectFile::aFileCutAtEveryByteIsNeverWrittenOver()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    QVERIFY(save(rig, projectPath(rig)));
    const QByteArray whole = WorkspaceRig::contentOf(projectPath(rig));
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QString cut = rig.file(QStringLiteral("cut.svk"), whole.first(length));
        rig.w.form.setProjectPath(QString());
        const LoadOutcome outcome = rig.w.projectFile.LoadProject(cut);
        const qsizetype notices = rig.prompts.takeNotices().size();
        QCOMPARE(notices, outcome == LoadOutcome::Loaded ? 0 : 1);
        // Only a file that was read to its end is the project's.
        QCOMPARE(rig.w.form.projectPath() == cut, outcome == LoadOutcome::Loaded);
    }
}

void TestProjectFile::aProjectSavedInAPauseReopensPaused()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.finishMessage();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    QVERIFY(save(rig, projectPath(rig)));
    const QStringList lines = linesOf(projectPath(rig));
    QCOMPARE(lines.at(0), QStringLiteral("v2.0"));
    QCOMPARE(lines.at(1), QStringLiteral("pausa"));
    QCOMPARE(lines.at(2), QStringLiteral(" 3 "));
    WorkspaceRig other;
    QCOMPARE(other.w.projectCommands.open(projectPath(rig)), LoadOutcome::LoadedPaused);
    QCOMPARE(other.w.form.runState(), RunState::Paused);
    QCOMPARE(other.w.engine.nextRecipientIndex(), 3);
    QCOMPARE(other.logged(),
             (QStringList{
                 QStringLiteral("Message file '%1' loaded").arg(rig.w.form.tag(Control::txtEmail)),
                 QStringLiteral("Sending procedure paused"),
                 QStringLiteral("Project file '%1' loaded").arg(projectPath(rig))}));
}

void TestProjectFile::aPausedProjectGoesOnAtItsRow()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.startSending();
    rig.finishMessage();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    QVERIFY(save(rig, projectPath(rig)));
    WorkspaceRig other;
    other.w.projectCommands.open(projectPath(rig));
    other.w.engine.cmdPausa_Click();
    other.Timer.tick();
    other.smtp.raiseReady();
    QCOMPARE(other.addressesSent(), QStringList{QStringLiteral("a3@example.net")});
    other.finishMessage();
    QCOMPARE(other.states(), (QStringList{Sent, Sent, Sent}));
    QCOMPARE(other.w.form.runState(), RunState::Idle);
}

void TestProjectFile::thePausedRunsElapsedTimeGoesOn()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    for (int i = 0; i < 75; ++i)
        rig.Timer2.tick();
    rig.w.engine.cmdPausa_Click();
    QVERIFY(save(rig, projectPath(rig)));
    WorkspaceRig other;
    other.w.projectCommands.open(projectPath(rig));
    QCOMPARE(other.label(Control::lblTrascorso), QStringLiteral("01:16"));
    QCOMPARE(other.label(Control::lblRimanente), QStringLiteral("--:--"));
}

void TestProjectFile::aPausedProjectWhoseMessageCannotBeReadRefusesToResume()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.w.engine.cmdPausa_Click();
    QVERIFY(save(rig, projectPath(rig)));
    const QString message = rig.w.form.tag(Control::txtEmail);
    QVERIFY(QFile::rename(message, message + QStringLiteral(".away")));
    WorkspaceRig other;
    QCOMPARE(other.w.projectCommands.open(projectPath(rig)), LoadOutcome::LoadedPaused);
    const QString unable = QStringLiteral("Unable to load the specified message!");
    QCOMPARE(other.prompts.takeNoticeTexts(), QStringList{unable});
    QCOMPARE(other.w.form.runState(), RunState::Paused);
    other.w.engine.cmdPausa_Click();
    QCOMPARE(other.prompts.takeNoticeTexts(), QStringList{unable});
    QCOMPARE(other.w.form.runState(), RunState::Paused);
    QVERIFY(QFile::rename(message + QStringLiteral(".away"), message));
    other.w.engine.cmdPausa_Click();
    QCOMPARE(other.w.form.runState(), RunState::Waiting);
    other.Timer.tick();
    other.smtp.raiseReady();
    QCOMPARE(other.smtp.sent.front().message.TextBody, QStringLiteral("Dear Name 1,\r\n"));
}

void TestProjectFile::theControlRowOfAPausedProjectIsFoundAgain()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.start();
    rig.w.engine.cmdPausa_Click();
    QVERIFY(save(rig, projectPath(rig)));
    WorkspaceRig other;
    other.w.projectCommands.open(projectPath(rig));
    QCOMPARE(other.w.recipients.count(), 3);
    other.w.engine.StopSending();
    QCOMPARE(other.w.recipients.count(), 2);
}

void TestProjectFile::aLastRowThatIsNotTheControlAddressStays()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.w.engine.cmdPausa_Click();
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    QVERIFY(save(rig, projectPath(rig)));
    WorkspaceRig other;
    other.w.projectCommands.open(projectPath(rig));
    other.w.engine.StopSending();
    QCOMPARE(other.w.recipients.count(), 2);
}

void TestProjectFile::aProjectSavedInARunHasNoControlRow()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.startSending();
    QVERIFY(save(rig, projectPath(rig)));
    const ProjectData project = dataOf(projectPath(rig));
    QVERIFY(!project.paused);
    QCOMPARE(statesOf(project), (QStringList{Sending, Waiting}));
}

void TestProjectFile::aProjectSavedInAPauseKeepsTheControlRow()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.start();
    rig.w.engine.cmdPausa_Click();
    QVERIFY(save(rig, projectPath(rig)));
    QCOMPARE(dataOf(projectPath(rig)).recipients.size(), 3U);
}

void TestProjectFile::loadingResetsTheSortColumn()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    QVERIFY(save(rig, projectPath(rig)));
    rig.w.recipients.sort(Column::Address, Qt::DescendingOrder);
    rig.w.projectFile.LoadProject(projectPath(rig));
    QVERIFY(rig.w.recipients.sortColumn() == Column::Number);
    QCOMPARE(rig.w.recipients.sortOrder(), Qt::AscendingOrder);
    QCOMPARE(rig.w.recipients.at(1).number, QStringLiteral("1"));
}

void TestProjectFile::aSaveInAPauseWaitsForTheMessageInFlight()
{
    WorkspaceRig rig;
    pauseInFlight(rig);
    QVERIFY(!save(rig, projectPath(rig)));
    QVERIFY(!QFile::exists(projectPath(rig)));
    rig.smtp.raiseDone(true);
    const ProjectData project = dataOf(projectPath(rig));
    QVERIFY(project.paused);
    QCOMPARE(project.nextRecipientIndex, 2);
    QCOMPARE(statesOf(project), (QStringList{Sent, Waiting, Waiting, Waiting}));
}

void TestProjectFile::aSaveInAPauseIsASnapshotOfItsMoment()
{
    WorkspaceRig rig;
    pauseInFlight(rig);
    rig.w.projectFile.SaveProject(projectPath(rig), [](bool) {});
    // Nothing on offer changes the project meanwhile; what does all the same is not saved.
    rig.w.form.setText(Control::txtOggetto, QStringLiteral("Later"));
    rig.w.recipients.clear();
    rig.smtp.raiseDone(true);
    const ProjectData project = dataOf(projectPath(rig));
    QCOMPARE(project.subject, QStringLiteral("News"));
    QCOMPARE(statesOf(project), (QStringList{Sent, Waiting, Waiting, Waiting}));
}

void TestProjectFile::aSaveDoesNotWaitForAMessageOfAnEarlierRun()
{
    WorkspaceRig rig;
    rig.fillForm(4);
    rig.startSending();
    rig.finishMessage();
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.w.engine.cmdStop_Click();
    rig.prompts.answerAll();
    rig.start();
    rig.w.engine.cmdPausa_Click();
    // The second message of the first run is still in flight; the new run has sent nothing.
    QVERIFY(save(rig, projectPath(rig)));
    const QByteArray saved = WorkspaceRig::contentOf(projectPath(rig));
    rig.smtp.raiseDone(true);
    QCOMPARE(WorkspaceRig::contentOf(projectPath(rig)), saved);
    QCOMPARE(dataOf(projectPath(rig)).nextRecipientIndex, 1);
    QCOMPARE(statesOf(dataOf(projectPath(rig))), (QStringList{Waiting, Waiting, Waiting, Waiting}));
}

void TestProjectFile::aSaveThatWaitsKeepsARefusedMessagesState()
{
    const ProjectData project = savedInFlight([](WorkspaceRig &rig) { rig.smtp.raiseDone(false); });
    QCOMPARE(statesOf(project), (QStringList{Error, Waiting, Waiting, Waiting}));
    QCOMPARE(project.nextRecipientIndex, 2);
}

void TestProjectFile::aSaveThatWaitsKeepsAMessageInDoubt()
{
    const ProjectData project = savedInFlight(
        [](WorkspaceRig &rig) { rig.smtp.raiseError(10, QStringLiteral("no answer")); });
    QVERIFY(project.paused);
    QCOMPARE(statesOf(project), (QStringList{Sending, Waiting, Waiting, Waiting}));
    QCOMPARE(project.nextRecipientIndex, 2);
}

void TestProjectFile::aSaveThatWaitsSendsAMessageNeverTakenAgain()
{
    const ProjectData project = savedInFlight(
        [](WorkspaceRig &rig) { rig.smtp.raiseError(9, QStringLiteral("not taken"), false); });
    QVERIFY(project.paused);
    QCOMPARE(statesOf(project), (QStringList{Waiting, Waiting, Waiting, Waiting}));
    QCOMPARE(project.nextRecipientIndex, 1);
}

void TestProjectFile::aSaveFinishedBeforeItsResultLeavesTheMessageInDoubt()
{
    WorkspaceRig rig;
    pauseInFlight(rig);
    rig.w.projectFile.SaveProject(projectPath(rig), [](bool) {});
    rig.w.projectFile.finishWaitingSave();
    const QByteArray saved = WorkspaceRig::contentOf(projectPath(rig));
    const ProjectData project = dataOf(projectPath(rig));
    QVERIFY(project.paused);
    QCOMPARE(statesOf(project), (QStringList{Sending, Waiting, Waiting, Waiting}));
    QCOMPARE(project.nextRecipientIndex, 2);
    rig.smtp.raiseDone(true);
    QCOMPARE(WorkspaceRig::contentOf(projectPath(rig)), saved);
}

void TestProjectFile::commandsWaitBehindASave()
{
    WorkspaceRig rig;
    pauseInFlight(rig);
    rig.w.form.setProjectPath(projectPath(rig));
    rig.w.projectCommands.cmdSave_Click();
    rig.w.engine.cmdPausa_Click();
    rig.w.engine.cmdStop_Click();
    QCOMPARE(rig.w.form.runState(), RunState::Paused);
    QCOMPARE(rig.prompts.openBoxes(), 0);
    rig.smtp.raiseDone(true);
    QCOMPARE(dataOf(projectPath(rig)).paused, true);
    rig.smtp.raiseReady();
    rig.settle();
    // In their order: the run was resumed, then the question came.
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    QCOMPARE(rig.prompts.openBoxes(), 1);
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
}
