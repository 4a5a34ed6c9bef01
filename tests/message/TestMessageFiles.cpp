#include "TestMessageFiles.h"

#include "MessageRig.h"
#include "base/modMain.h"
#include "settings/Settings.h"
#include "support/ItalianTexts.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

enum Command { ChooseText, ChooseHtml, NewFile };

constexpr auto AnyFilter = "File HTML (*.htm; *.html)|*.htm;*.html";

void run(MessageRig &rig, Command command)
{
    if (command == ChooseText)
        rig.files.cmdEmail_Click();
    else if (command == ChooseHtml)
        rig.files.cmdHTML_Click();
    else
        rig.files.NewMessageFile(QString::fromLatin1(AnyFilter), [](const QString &) {});
}

const QString TextTitle = u"Select the message file:"_s;

} // namespace

void TestMessageFiles::dialogs_data()
{
    QTest::addColumn<bool>("isItalian");
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("extension");
    QTest::newRow("text") << false << int(ChooseText) << u"Select the message file:"_s
                          << u"Text file (*.txt)|*.txt|All files (*.*)|*.*"_s << u"txt"_s;
    QTest::newRow("text, Italian")
        << true << int(ChooseText) << u"Selezionare il file del messaggio:"_s
        << u"File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*"_s << u"txt"_s;
    QTest::newRow("HTML") << false << int(ChooseHtml) << u"Select the message file:"_s
                          << u"HTML Files (*.htm; *.html)|*.htm; *.html|All files (*.*)|*.*"_s
                          << u""_s;
    QTest::newRow("HTML, Italian")
        << true << int(ChooseHtml) << u"Selezionare il file di messaggio:"_s
        << u"File HTML (*.htm; *.html)|*.htm; *.html|Tutti i file (*.*)|*.*"_s << u""_s;
    QTest::newRow("new") << false << int(NewFile) << u"New message file:"_s
                         << QString::fromLatin1(AnyFilter) << u""_s;
    QTest::newRow("new, Italian") << true << int(NewFile) << u"Nuovo file messaggio:"_s
                                  << QString::fromLatin1(AnyFilter) << u""_s;
}

void TestMessageFiles::dialogs()
{
    QFETCH(const bool, isItalian);
    QFETCH(const int, command);
    QFETCH(const QString, title);
    QFETCH(const QString, filter);
    QFETCH(const QString, extension);
    const auto italian = isItalian ? std::make_unique<ItalianTexts>() : nullptr;
    MessageRig rig(isItalian ? Language::Italian : Language::English);
    rig.prompts.expectFile(title, {});
    run(rig, static_cast<Command>(command));
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs.size(), 1);
    const FileDialog &dialog = rig.prompts.fileDialogs[0];
    QCOMPARE(dialog.kind, command == NewFile ? FileDialog::Kind::Save : FileDialog::Kind::Open);
    QCOMPARE(dialog.filter, filter);
    QCOMPARE(dialog.defaultExtension, extension);
    QCOMPARE(dialog.initialFolder, u"C:\\Documenti Sorvanta\\"_s);
}

void TestMessageFiles::chosenFileIsTheMessage_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("box");
    QTest::newRow("text") << int(ChooseText) << static_cast<int>(Control::txtEmail);
    QTest::newRow("HTML") << int(ChooseHtml) << static_cast<int>(Control::txtHTML);
}

void TestMessageFiles::chosenFileIsTheMessage()
{
    QFETCH(const int, command);
    QFETCH(const int, box);
    MessageRig rig;
    const QString path =
        rig.document(u"a-rather-long-folder-name/another-rather-long-folder-name/letter"_s,
                     QByteArray(1536, 'x'));
    rig.prompts.expectFile(TextTitle, path);
    run(rig, static_cast<Command>(command));
    rig.prompts.answerAll();
    const auto control = static_cast<Control>(box);
    QCOMPARE(rig.form.tag(control), path);
    QCOMPARE(rig.form.text(control), Wrap(path, 60));
    QVERIFY(rig.form.text(control).contains(u"..."_s));
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.form.text(Control::lblSize), u"1.50 KB"_s);
}

void TestMessageFiles::choosingNothingChangesNothing()
{
    for (const Command command : {ChooseText, ChooseHtml}) {
        MessageRig rig;
        rig.form.setTag(Control::txtEmail, u"/old.txt"_s);
        rig.form.setTag(Control::txtHTML, u"/old.htm"_s);
        rig.prompts.expectFile(TextTitle, {});
        run(rig, command);
        rig.prompts.answerAll();
        QCOMPARE(rig.form.tag(Control::txtEmail), u"/old.txt"_s);
        QCOMPARE(rig.form.tag(Control::txtHTML), u"/old.htm"_s);
        QVERIFY(!rig.form.projectModified());
        QCOMPARE(rig.form.text(Control::lblSize), u"0 KB"_s);
        QCOMPARE(rig.logged(), QStringList());
    }
}

void TestMessageFiles::chosenTextIsNotRead()
{
    MessageRig rig;
    rig.prompts.expectFile(TextTitle, rig.documents.filePath(u"missing.txt"_s));
    rig.files.cmdEmail_Click();
    rig.prompts.answerAll();
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    QCOMPARE(rig.logged(), QStringList());
}

void TestMessageFiles::dialogOpensInTheFolderOfTheLastChoice()
{
    MessageRig rig;
    rig.prompts.expectFile(TextTitle, rig.document(u"letters/a.txt"_s, "a"));
    rig.files.cmdEmail_Click();
    rig.prompts.answerAll();
    const QString letters = rig.documents.filePath(u"letters/"_s);
    for (const Command command : {ChooseText, ChooseHtml, NewFile}) {
        rig.prompts.expectFile(command == NewFile ? u"New message file:"_s : TextTitle, {});
        run(rig, command);
        rig.prompts.answerAll();
        QCOMPARE(rig.prompts.fileDialogs.last().initialFolder, letters);
    }
}

void TestMessageFiles::folderOfTheLastChoiceIsKeptInTheSettings()
{
    MessageRig rig;
    rig.prompts.expectFile(TextTitle, u"C:\\letters\\a.htm"_s);
    rig.files.cmdHTML_Click();
    rig.prompts.answerAll();
    QCOMPARE(Settings::ReadDefaultDocPath(rig.settings), std::string("C:\\letters\\"));
    QCOMPARE(rig.prompts.takeNotices().size(), 1); // there is no such file here
}

void TestMessageFiles::folderBeyondTheCodePageIsKept()
{
    MessageRig rig;
    rig.prompts.expectFile(TextTitle, u"/home/Łukasz/è/a.txt"_s);
    rig.files.cmdEmail_Click();
    rig.prompts.answerAll();
    rig.prompts.expectFile(TextTitle, {});
    rig.files.cmdEmail_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs.last().initialFolder, u"/home/Łukasz/è/"_s);
}

void TestMessageFiles::answerAfterTheProjectWasReplacedIsIgnored()
{
    for (const Command command : {ChooseText, ChooseHtml, NewFile}) {
        MessageRig rig;
        const QString path = rig.documents.filePath(u"new.htm"_s);
        rig.prompts.expectFile(command == NewFile ? u"New message file:"_s : TextTitle, path);
        run(rig, command);
        rig.form.countProjectReplaced();
        rig.prompts.answerAll();
        QCOMPARE(rig.form.tag(Control::txtEmail), QString());
        QCOMPARE(rig.form.tag(Control::txtHTML), QString());
        QVERIFY(!QFile::exists(path));
    }
}

void TestMessageFiles::answerAfterARunHasStartedIsIgnored()
{
    for (const Command command : {ChooseText, ChooseHtml, NewFile}) {
        MessageRig rig;
        const QString path = rig.documents.filePath(u"new.htm"_s);
        rig.prompts.expectFile(command == NewFile ? u"New message file:"_s : TextTitle, path);
        run(rig, command);
        rig.form.setRunState(RunState::Waiting, "a test");
        rig.prompts.answerAll();
        QCOMPARE(rig.form.tag(Control::txtEmail), QString());
        QCOMPARE(rig.form.tag(Control::txtHTML), QString());
        QVERIFY(!QFile::exists(path));
    }
}

void TestMessageFiles::clearingForgetsTheFile_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<int>("other");
    QTest::newRow("text") << static_cast<int>(Control::txtEmail)
                          << static_cast<int>(Control::txtHTML);
    QTest::newRow("HTML") << static_cast<int>(Control::txtHTML)
                          << static_cast<int>(Control::txtEmail);
}

void TestMessageFiles::clearingForgetsTheFile()
{
    QFETCH(const int, box);
    QFETCH(const int, other);
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, QByteArray(1024, 'x')));
    rig.useMessage(Control::txtHTML, rig.document(u"a.htm"_s, QByteArray(1024, 'x')));
    rig.form.setProjectModified(false);
    if (static_cast<Control>(box) == Control::txtEmail)
        rig.files.cmdCancellaTXT_Click();
    else
        rig.files.cmdCancellaHTML_Click();
    QCOMPARE(rig.form.tag(static_cast<Control>(box)), QString());
    QCOMPARE(rig.form.text(static_cast<Control>(box)), QString());
    QVERIFY(!rig.form.tag(static_cast<Control>(other)).isEmpty());
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.form.text(Control::lblSize), u"1.00 KB"_s);
    QVERIFY(rig.prompts.questions.isEmpty());
}

void TestMessageFiles::newFileIsCreatedEmpty()
{
    MessageRig rig;
    const QString path = rig.documents.filePath(u"new.htm"_s);
    rig.prompts.expectFile(u"New message file:"_s, path);
    QString given = u"nothing yet"_s;
    rig.files.NewMessageFile(u""_s, [&given](const QString &name) { given = name; });
    rig.prompts.answerAll();
    QCOMPARE(given, path);
    QCOMPARE(readFile(path), QByteArray());
    QCOMPARE(Settings::ReadDefaultDocPath(rig.settings), rig.documents.path().toStdString() + "/");
    QCOMPARE(rig.form.tag(Control::txtHTML), QString()); // the caller's affair
}

void TestMessageFiles::newFileThatExistsIsLeftAsItIs()
{
    MessageRig rig;
    const QString path = rig.document(u"old.htm"_s, "old");
    rig.prompts.expectFile(u"New message file:"_s, path);
    QString given;
    rig.files.NewMessageFile(u""_s, [&given](const QString &name) { given = name; });
    rig.prompts.answerAll();
    QCOMPARE(given, path);
    QCOMPARE(readFile(path), "old"_ba);
}

void TestMessageFiles::newFileThatWasNotNamedIsNone()
{
    MessageRig rig;
    rig.prompts.expectFile(u"New message file:"_s, {});
    QString given = u"nothing yet"_s;
    rig.files.NewMessageFile(u""_s, [&given](const QString &name) { given = name; });
    rig.prompts.answerAll();
    QCOMPARE(given, QString());
    QCOMPARE(Settings::ReadDefaultDocPath(rig.settings), std::string("C:\\Documenti Sorvanta\\"));
}

void TestMessageFiles::newFileThatCannotBeCreatedIsSaidAndIsNone()
{
    MessageRig rig;
    const QString path = rig.documents.filePath(u"missing/new.htm"_s);
    rig.prompts.expectFile(u"New message file:"_s, path);
    QString given = u"nothing yet"_s;
    rig.files.NewMessageFile(u""_s, [&given](const QString &name) { given = name; });
    rig.prompts.answerAll();
    QCOMPARE(given, QString());
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::Critical);
    QCOMPARE(notices[0].title, u"Error"_s);
    QVERIFY(notices[0].text.startsWith(path + u": "_s));
}
