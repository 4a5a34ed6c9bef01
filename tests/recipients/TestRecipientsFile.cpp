#include "TestRecipientsFile.h"

#include "RecipientsRig.h"
#include "base/modMain.h"
#include "support/ItalianTexts.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString Failure = u"Unable to load the specified list of recipients!"_s;
const QString Report = u"These recipients couldn't be added:\r\n"_s;

/// Writes a file of that content and imports it. Gives its path.
QString import(RecipientsRig &rig, const QByteArray &content)
{
    const QString path = rig.folder.filePath(u"list.txt"_s);
    writeFile(path, content);
    rig.file.SetRecipientsFile(path);
    return path;
}

QStringList loaded(const QString &path)
{
    return {u"Recipients file '"_s + path + u"' loaded"_s};
}

/// That many lines with a valid address each.
QByteArray lines(int count)
{
    QByteArray content;
    for (int i = 1; i <= count; ++i)
        content += "Name;a" + QByteArray::number(i) + "@example.com\r\n";
    return content;
}

} // namespace

void TestRecipientsFile::lineGivesACheckedRowWaiting()
{
    RecipientsRig rig;
    const QString path = import(rig, "Mario Rossi;mario@example.com\r\n");
    QCOMPARE(rig.list.count(), 1);
    const Recipient &row = rig.list.at(1);
    QCOMPARE(row.number, u"1"_s);
    QCOMPARE(row.name, u"Mario Rossi"_s);
    QCOMPARE(row.address, u"mario@example.com"_s);
    QCOMPARE(row.state, u"Waiting"_s);
    QCOMPARE(row.imageIndex, qint16(2));
    QVERIFY(row.checked);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    QCOMPARE(rig.logged(), loaded(path));
    QVERIFY(rig.form.projectModified());
}

void TestRecipientsFile::addressBeforeACommentKeepsItsTrailingSpaceAndIsRejected()
{
    RecipientsRig rig;
    const QString path =
        import(rig, "Mario;mario@example.com # his own\r\nAnna;a@example.com#x\r\n");
    QCOMPARE(rig.addresses(), QStringList{u"a@example.com"_s});
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{Report + u"Mario - mario@example.com \r\n"_s});
    QCOMPARE(rig.logged(), loaded(path));
}

void TestRecipientsFile::commentCutsTheAddressAlone()
{
    RecipientsRig rig;
    import(rig, "#1 Mario;mario@example.com#home#;x\r\n#Anna;anna@example.com\r\n");
    QCOMPARE(rig.names(), (QStringList{u"#1 Mario"_s, u"#Anna"_s}));
    QCOMPARE(rig.addresses(), (QStringList{u"mario@example.com"_s, u"anna@example.com"_s}));
}

void TestRecipientsFile::lastLineMayEndOrNot_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("with its end") << "\r\n"_ba;
    QTest::newRow("without") << ""_ba;
}

void TestRecipientsFile::lastLineMayEndOrNot()
{
    QFETCH(const QByteArray, end);
    RecipientsRig rig;
    import(rig, "A;a@example.com\r\nB;b@example.com" + end);
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"2"_s}));
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestRecipientsFile::blankLineInTheMiddleStopsTheImportAndKeepsTheRowsBefore()
{
    RecipientsRig rig;
    const QString path = import(rig, "A;a@example.com\r\n\r\nB;b@example.com\r\n");
    QCOMPARE(rig.names(), QStringList{u"A"_s});
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::Critical);
    QCOMPARE(notices[0].title, u"Recipients"_s);
    QCOMPARE(notices[0].text, Failure);
    QVERIFY(notices[0].detail.startsWith(path));
    QCOMPARE(rig.form.tag(Control::txtDestinatari), path);
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientsFile::lineWithoutSemicolonStopsTheImport()
{
    RecipientsRig rig;
    import(rig, "A;a@example.com\r\nb@example.com\r\nC;c@example.com\r\n");
    QCOMPARE(rig.names(), QStringList{u"A"_s});
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{Failure});
}

void TestRecipientsFile::furtherFieldsAreIgnored()
{
    RecipientsRig rig;
    import(rig, "Mario;mario@example.com;+39 02 1234;via Roma;;\r\n");
    QCOMPARE(rig.names(), QStringList{u"Mario"_s});
    QCOMPARE(rig.addresses(), QStringList{u"mario@example.com"_s});
}

void TestRecipientsFile::rejectedLineLeavesNoGapInTheNumbers()
{
    RecipientsRig rig;
    const QString path = import(rig, "A;a@example.com\r\nB;b@example\r\nC;c@example.com\r\n");
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"2"_s}));
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"C"_s}));
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::None);
    QCOMPARE(notices[0].title, u"Sorvanta"_s);
    QCOMPARE(notices[0].text, Report + u"B - b@example\r\n"_s);
    QCOMPARE(rig.logged(), loaded(path));
}

void TestRecipientsFile::nothingIsTrimmed()
{
    RecipientsRig rig;
    import(rig, " Mario ;mario@example.com\r\nAnna; anna@example.com\r\nB;b b@example.com\r\n");
    QCOMPARE(rig.names(), QStringList{u" Mario "_s});
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{Report + u"Anna -  anna@example.com\r\nB - b b@example.com\r\n"_s});
}

void TestRecipientsFile::sameAddressTwiceGivesTwoRows()
{
    RecipientsRig rig;
    import(rig, "A;a@example.com\r\nA;a@example.com\r\n");
    QCOMPARE(rig.list.count(), 2);
}

void TestRecipientsFile::nameMayBeEmpty()
{
    RecipientsRig rig;
    import(rig, ";a@example.com\r\n;\r\n");
    QCOMPARE(rig.names(), QStringList{QString(u""_s)});
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{Report + u" - \r\n"_s});
}

void TestRecipientsFile::importReplacesTheWholeList()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    rig.list.setState(1, u"Sent"_s);
    rig.list.setCheckedWithImage(2, false, RowImage::Unchecked);
    import(rig, "B;b@example.com\r\n");
    QCOMPARE(rig.names(), QStringList{u"B"_s});
    QCOMPARE(rig.list.at(1).state, u"Waiting"_s);
    QVERIFY(rig.list.at(1).checked);
}

void TestRecipientsFile::importSortsByName()
{
    RecipientsRig rig;
    rig.list.sort(Column::Address, Qt::DescendingOrder);
    import(rig, "C;c@example.com\r\nA;a@example.com\r\nB;b@example.com\r\n");
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    // Numbers follow the file.
    QCOMPARE(rig.numbers(), (QStringList{u"2"_s, u"3"_s, u"1"_s}));
    QCOMPARE(rig.list.sortColumn(), Column::Name);
    QCOMPARE(rig.list.sortOrder(), Qt::AscendingOrder);
}

void TestRecipientsFile::emptyFileEmptiesTheListAndIsLogged()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    const QString path = import(rig, "");
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    QCOMPARE(rig.logged(), loaded(path));
}

void TestRecipientsFile::lineEnds_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("CR LF") << "\r\n"_ba;
    QTest::newRow("LF") << "\n"_ba;
    QTest::newRow("CR") << "\r"_ba;
}

void TestRecipientsFile::lineEnds()
{
    QFETCH(const QByteArray, end);
    RecipientsRig rig;
    import(rig, "A;a@example.com" + end + "B;b@example.com" + end);
    QCOMPARE(rig.addresses(), (QStringList{u"a@example.com"_s, u"b@example.com"_s}));
}

void TestRecipientsFile::encodings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::newRow("code page") << "Niccol\xF2;a@example.com\r\n"_ba << u"Niccolò"_s;
    QTest::newRow("UTF-8") << "Niccol\xC3\xB2 \xC5\x81;a@example.com\r\n"_ba << u"Niccolò Ł"_s;
    QTest::newRow("UTF-8 with mark")
        << "\xEF\xBB\xBFNiccol\xC3\xB2;a@example.com\r\n"_ba << u"Niccolò"_s;
    QTest::newRow("ASCII with mark") << "\xEF\xBB\xBFMario;a@example.com\r\n"_ba << u"Mario"_s;
}

void TestRecipientsFile::encodings()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, name);
    RecipientsRig rig;
    import(rig, content);
    QCOMPARE(rig.names(), QStringList{name});
}

void TestRecipientsFile::binaryFileStopsTheImport()
{
    QByteArray content("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    for (int i = 0; i < 256; ++i)
        content += static_cast<char>(i);
    RecipientsRig rig;
    import(rig, content);
    QCOMPARE(rig.list.count(), 0);
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{Failure});
}

void TestRecipientsFile::fileOf32767LinesIsImportedWhole()
{
    RecipientsRig rig;
    const QString path = import(rig, lines(32767));
    QCOMPARE(rig.list.count(), 32767);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
    QCOMPARE(rig.logged(), loaded(path));
}

void TestRecipientsFile::fileOf40000LinesFailsAfter32767Rows()
{
    RecipientsRig rig;
    import(rig, lines(40000));
    QCOMPARE(rig.list.count(), 32767);
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{Failure});
    QCOMPARE(rig.logged(), QStringList());
    // The file's first rows are those that stay: all names are the same, so the sort moved none.
    QCOMPARE(rig.list.at(32767).number, u"32767"_s);
    QCOMPARE(rig.list.at(32767).address, u"a32767@example.com"_s);
}

void TestRecipientsFile::rejectedLineAfterTheLastPossibleRowFailsToo()
{
    // A line is counted before its address is looked at.
    const QString text = QString::fromLatin1(lines(32767)) + u"B;b@example\r\n"_s;
    const RecipientsText read = readRecipientsText(text, u"Waiting"_s);
    QVERIFY(!read.complete);
    QCOMPARE(read.rows.size(), 32767);
    const RecipientsText before =
        readRecipientsText(u"B;b@example\r\n"_s + QString::fromLatin1(lines(32767)), u"Waiting"_s);
    QVERIFY(before.complete);
    QCOMPARE(before.rows.size(), 32767);
}

void TestRecipientsFile::fileThatCannotBeReadKeepsTheNewPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"missing.txt"_s << u"the file does not exist"_s;
    QTest::newRow("folder") << u"folder"_s << u"it is a folder"_s;
    QTest::newRow("pipe") << u"pipe"_s << u"it is not a regular file"_s;
}

void TestRecipientsFile::fileThatCannotBeReadKeepsTheNewPath()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    RecipientsRig rig;
    QVERIFY(QDir(rig.folder.path()).mkdir(u"folder"_s));
    QCOMPARE(::mkfifo(qPrintable(rig.folder.filePath(u"pipe"_s)), 0600), 0);
    rig.fill({u"A"_s});
    const QString path = rig.folder.filePath(name);
    rig.file.SetRecipientsFile(path);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::Critical);
    QCOMPARE(notices[0].text, Failure);
    QCOMPARE(notices[0].detail, path + u": "_s + reason);
    QCOMPARE(rig.list.count(), 0);
    QCOMPARE(rig.form.tag(Control::txtDestinatari), path);
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientsFile::noReportAfterAFailure()
{
    RecipientsRig rig;
    import(rig, "A;a@example\r\nB;b@example.com\r\nno semicolon\r\n");
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{Failure});
    QCOMPARE(rig.names(), QStringList{u"B"_s});
}

void TestRecipientsFile::stateWordIsThatOfTheWindow()
{
    RecipientsRig rig(Language::Italian);
    import(rig, "A;a@example.com\r\n");
    QCOMPARE(rig.list.at(1).state, u"Attesa"_s);
}

void TestRecipientsFile::boxesAreItalianInItalian()
{
    const ItalianTexts italian;
    RecipientsRig rig(Language::Italian);
    const QString path = import(rig, "A;a@example\r\n");
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{u"I seguenti destinatari non sono corretti:\r\nA - a@example\r\n"_s});
    QCOMPARE(rig.logged(), loaded(path));
    import(rig, "A\r\n");
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].title, u"Destinatari"_s);
    QCOMPARE(notices[0].text, u"Impossibile caricare la lista destinatari specificata!"_s);
}

void TestRecipientsFile::choosingAsksForTheFile()
{
    RecipientsRig rig;
    const QString path = rig.folder.filePath(u"list.txt"_s);
    writeFile(path, "A;a@example.com\r\n");
    rig.prompts.expectFile(u"Select recipients file:"_s, path);
    rig.file.cmdDestinatari_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs.size(), 1);
    const FileDialog &dialog = rig.prompts.fileDialogs[0];
    QCOMPARE(dialog.kind, FileDialog::Kind::Open);
    QCOMPARE(dialog.filter, u"Text file (*.txt)|*.txt|All files (*.*)|*.*"_s);
    QCOMPARE(dialog.defaultExtension, u"txt"_s);
    QCOMPARE(dialog.initialFolder, QString());
    QCOMPARE(rig.names(), QStringList{u"A"_s});
    QCOMPARE(rig.form.tag(Control::txtDestinatari), path);
    QVERIFY(rig.form.projectModified());
}

void TestRecipientsFile::choosingInItalian()
{
    const ItalianTexts italian;
    RecipientsRig rig(Language::Italian);
    rig.prompts.expectFile(u"Selezionare il file destinatari:"_s, {});
    rig.file.cmdDestinatari_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs[0].filter,
             u"File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*"_s);
}

void TestRecipientsFile::choosingNothingChangesNothing()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    rig.form.setTag(Control::txtDestinatari, u"/old.txt"_s);
    rig.prompts.expectFile(u"Select recipients file:"_s, {});
    rig.file.cmdDestinatari_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.names(), QStringList{u"A"_s});
    QCOMPARE(rig.form.tag(Control::txtDestinatari), u"/old.txt"_s);
    QVERIFY(!rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientsFile::chosenFileIsShownShortened()
{
    RecipientsRig rig;
    const QString path = u"/home/mario/mailings/spring/customers-of-the-northern-region.txt"_s;
    rig.file.SetRecipientsFile(path);
    QCOMPARE(rig.form.tag(Control::txtDestinatari), path);
    QCOMPARE(rig.form.text(Control::txtDestinatari),
             u"/.../mailings/spring/customers-of-the-northern-region.txt"_s);
    QCOMPARE(rig.form.text(Control::txtDestinatari), Wrap(path, 60));
}

void TestRecipientsFile::answerAfterTheProjectWasReplacedIsIgnored()
{
    RecipientsRig rig;
    rig.prompts.expectFile(u"Select recipients file:"_s, u"/list.txt"_s);
    rig.file.cmdDestinatari_Click();
    rig.form.countProjectReplaced();
    rig.prompts.answerAll();
    QCOMPARE(rig.form.tag(Control::txtDestinatari), QString());
}

void TestRecipientsFile::answerAfterARunHasStartedIsIgnored()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    rig.prompts.expectFile(u"Select recipients file:"_s, u"/list.txt"_s);
    rig.file.cmdDestinatari_Click();
    rig.form.setRunState(RunState::Waiting, "a test");
    rig.prompts.answerAll();
    QCOMPARE(rig.list.count(), 1);
}

void TestRecipientsFile::bareNameLiesInTheProgramFolder()
{
    RecipientsRig rig;
    writeFile(rig.folder.filePath(u"rubrica.txt"_s), "A;a@example.com;;\r\n");
    rig.file.SetRecipientsFile(u"rubrica.txt"_s);
    QCOMPARE(rig.form.tag(Control::txtDestinatari), rig.folder.filePath(u"rubrica.txt"_s));
    QCOMPARE(rig.names(), QStringList{u"A"_s});
}

void TestRecipientsFile::absolutePathStays()
{
    RecipientsRig rig;
    for (const QString &path :
         {u"/missing/list.txt"_s, u"D:\\list.txt"_s, u"\\\\server\\l.txt"_s}) {
        rig.file.SetRecipientsFile(path);
        QCOMPARE(rig.form.tag(Control::txtDestinatari), path);
    }
}
