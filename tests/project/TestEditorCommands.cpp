#include "TestEditorCommands.h"

#include "project/EditorCommands.h"
#include "support/FakeShell.h"
#include "support/WorkspaceRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString NewTitle = QStringLiteral("New message file:");

struct Rig : WorkspaceRig
{
    using WorkspaceRig::WorkspaceRig;

    void useFile(Control box, const QString &path)
    {
        w.form.setTag(box, path);
        w.form.setText(box, path);
        w.form.setProjectModified(false);
    }

    FakeShell shell;
    EditorCommands editors{w.form, w.messageFiles, w.windowSettings, prompts, shell};
};

} // namespace

void TestEditorCommands::newEditWithAFileSetOpensItWithoutAskingOrMarking()
{
    Rig rig;
    rig.shell.programs = {u"kate"_s, u"bluefish"_s};
    rig.w.windowSettings.setEditors(u"kate"_s, u"bluefish"_s);
    rig.useFile(Control::txtEmail, u"/m/letter.txt"_s);
    rig.useFile(Control::txtHTML, u"/m/letter.htm"_s);
    rig.editors.cmdPreviewTXT_Click();
    rig.editors.cmdPreviewHTML_Click();
    QCOMPARE(rig.shell.started.size(), 2);
    QCOMPARE(rig.shell.started[0].program, u"kate"_s);
    QCOMPARE(rig.shell.started[0].arguments, {u"/m/letter.txt"_s});
    QCOMPARE(rig.shell.started[1].program, u"bluefish"_s);
    QCOMPARE(rig.shell.started[1].arguments, {u"/m/letter.htm"_s});
    QVERIFY(rig.prompts.fileDialogs.isEmpty());
    QVERIFY(!rig.w.form.projectModified());
}

void TestEditorCommands::withoutAFileANewOneIsCreatedAndOpened()
{
    Rig rig;
    rig.shell.programs = {u"kate"_s};
    rig.w.windowSettings.setEditors(u"kate"_s, {});
    const QString path = rig.folder.filePath(u"new.txt"_s);
    rig.prompts.expectFile(NewTitle, path);
    rig.editors.cmdPreviewTXT_Click();
    rig.prompts.answerAll();
    QVERIFY(QFile::exists(path));
    QCOMPARE(rig.w.form.tag(Control::txtEmail), path);
    QVERIFY(rig.w.form.projectModified());
    QCOMPARE(rig.label(Control::lblSize), u"0.00 KB"_s);
    QCOMPARE(rig.shell.started.size(), 1);
    QCOMPARE(rig.shell.started[0].arguments, {path});
}

void TestEditorCommands::cancellingStartsNoEditor()
{
    Rig rig;
    rig.prompts.expectFile(NewTitle, {});
    rig.editors.cmdPreviewHTML_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.text(Control::txtHTML), QString());
    QVERIFY(!rig.w.form.projectModified());
    QVERIFY(rig.shell.started.isEmpty());
    QVERIFY(rig.shell.opened.isEmpty());
}

void TestEditorCommands::cancellingForgetsTheFileOfAnEmptiedBox()
{
    Rig rig;
    rig.useFile(Control::txtHTML, u"/m/letter.htm"_s);
    rig.w.form.setText(Control::txtHTML, {});
    rig.prompts.expectFile(NewTitle, {});
    rig.editors.cmdPreviewHTML_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.tag(Control::txtHTML), QString());
}

void TestEditorCommands::pathWithBlanksReachesTheEditorInPieces()
{
    Rig rig;
    rig.shell.programs = {u"kate"_s};
    rig.w.windowSettings.setEditors(u"kate"_s, {});
    rig.useFile(Control::txtEmail, u"/my files/a letter.txt"_s);
    rig.editors.cmdPreviewTXT_Click();
    QCOMPARE(rig.shell.started[0].arguments,
             QStringList({u"/my"_s, u"files/a"_s, u"letter.txt"_s}));
}

void TestEditorCommands::editorMayHaveBlanksAndArguments()
{
    Rig rig;
    rig.shell.programs = {u"/opt/my editor/run"_s};
    rig.w.windowSettings.setEditors(u"/opt/my editor/run -n --wait"_s, {});
    rig.useFile(Control::txtEmail, u"/m/letter.txt"_s);
    rig.editors.cmdPreviewTXT_Click();
    QCOMPARE(rig.shell.started[0].program, u"/opt/my editor/run"_s);
    QCOMPARE(rig.shell.started[0].arguments,
             QStringList({u"-n"_s, u"--wait"_s, u"/m/letter.txt"_s}));
}

void TestEditorCommands::longestExistingProgramIsTheEditor()
{
    Rig rig;
    rig.shell.programs = {u"/opt/my"_s, u"/opt/my editor"_s};
    rig.w.windowSettings.setEditors(u"/opt/my editor -n"_s, {});
    rig.useFile(Control::txtEmail, u"/m/letter.txt"_s);
    rig.editors.cmdPreviewTXT_Click();
    QCOMPARE(rig.shell.started[0].program, u"/opt/my editor"_s);
}

void TestEditorCommands::absentDefaultEditorLetsTheDesktopOpenTheFile_data()
{
    QTest::addColumn<bool>("html");
    QTest::addRow("text") << false;
    QTest::addRow("HTML") << true;
}

void TestEditorCommands::absentDefaultEditorLetsTheDesktopOpenTheFile()
{
    QFETCH(bool, html);
    Rig rig;
    rig.w.windowSettings.setEditors({}, {});
    rig.useFile(html ? Control::txtHTML : Control::txtEmail, u"/my files/50% off #1.txt"_s);
    if (html)
        rig.editors.cmdPreviewHTML_Click();
    else
        rig.editors.cmdPreviewTXT_Click();
    QCOMPARE(rig.shell.opened, {u"file:///my%20files/50%25%20off%20%231.txt"_s});
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestEditorCommands::absentEditorIsReported()
{
    Rig rig;
    rig.w.windowSettings.setEditors(u"emaks -nw"_s, {});
    rig.useFile(Control::txtEmail, u"/m/letter.txt"_s);
    rig.editors.cmdPreviewTXT_Click();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::Critical);
    QCOMPARE(notices[0].title, u"Error"_s);
    QCOMPARE(notices[0].text, u"The editor cannot be started: emaks -nw"_s);
    QVERIFY(rig.shell.opened.isEmpty());
}

void TestEditorCommands::editorThatDoesNotStartIsReported()
{
    Rig rig;
    rig.shell.programs = {u"kate"_s};
    rig.shell.startsWork = false;
    rig.w.windowSettings.setEditors(u"kate"_s, {});
    rig.useFile(Control::txtEmail, u"/m/letter.txt"_s);
    rig.editors.cmdPreviewTXT_Click();
    QCOMPARE(rig.prompts.takeNoticeTexts(), {u"The editor cannot be started: kate"_s});
}

void TestEditorCommands::emptyEditorsBecomeTheDefaults()
{
    Rig rig;
    rig.w.windowSettings.setEditors({}, {});
    QCOMPARE(rig.w.windowSettings.TXTEditorPath, u"notepad.exe"_s);
    QCOMPARE(rig.w.windowSettings.HTMLEditorPath, rig.folder.filePath(u"htmledit.exe"_s));
}

void TestEditorCommands::filtersForNewFilesAreItalianInBothLanguages_data()
{
    QTest::addColumn<Language>("language");
    QTest::addRow("English") << Language::English;
    QTest::addRow("Italian") << Language::Italian;
}

void TestEditorCommands::filtersForNewFilesAreItalianInBothLanguages()
{
    QFETCH(Language, language);
    Rig rig(language);
    rig.prompts.expectFile(NewTitle, {});
    rig.prompts.expectFile(NewTitle, {});
    rig.editors.cmdPreviewTXT_Click();
    rig.editors.cmdPreviewHTML_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs[0].filter, u"File di testo (*.txt)|*.txt"_s);
    QCOMPARE(rig.prompts.fileDialogs[1].filter, u"File HTML (*.htm; *.html)|*.htm;*.html"_s);
    QCOMPARE(rig.prompts.fileDialogs[0].kind, FileDialog::Kind::Save);
}
