#include "TestMessageBodies.h"

#include "MessageRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList UnableToLoad{u"Unable to load the specified message!"_s};

/// The client takes files that exist, as the real one does, and refers to them by their content.
void takeExistingFiles(MessageRig &rig)
{
    rig.SMTP.takeRelatedFile = [](const QString &path) {
        return QFileInfo(path).isFile() ? u"cid:"_s + QString::fromLatin1(readFile(path))
                                        : QString();
    };
}

/// Loads the HTML message of that content and gives the body.
QString loaded(MessageRig &rig, const QByteArray &html)
{
    rig.useHtml(html);
    return rig.bodies.LoadHtmlBody() ? rig.bodies.htmlBody() : u"failed"_s;
}

} // namespace

void TestMessageBodies::textIsLoadedFromItsTag()
{
    MessageRig rig;
    const QString path = rig.document(u"a.txt"_s, "Dear *NOME*\n");
    rig.form.setTag(Control::txtEmail, path);
    QVERIFY(rig.bodies.LoadTextBody());
    QCOMPARE(rig.bodies.textBody(), u"Dear *NOME*\r\n"_s);
    QCOMPARE(rig.logged(), QStringList{u"Message file '"_s + path + u"' loaded"_s});
}

void TestMessageBodies::noTextFileLeavesTheBodyAsItIs()
{
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, "a"));
    QVERIFY(rig.bodies.LoadTextBody());
    rig.useMessage(Control::txtEmail, {});
    QVERIFY(rig.bodies.LoadTextBody());
    QCOMPARE(rig.bodies.textBody(), u"a\r\n"_s);
}

void TestMessageBodies::textThatCannotBeReadFails()
{
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.documents.path());
    QVERIFY(!rig.bodies.LoadTextBody());
    QCOMPARE(rig.bodies.textBody(), QString());
    QCOMPARE(rig.prompts.takeNoticeTexts(), UnableToLoad);
}

void TestMessageBodies::htmlGoesByTheTextShown()
{
    MessageRig rig;
    rig.useHtml("<p>a</p>");
    rig.form.setText(Control::txtHTML, {});
    QVERIFY(rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.bodies.htmlBody(), QString());
    QCOMPARE(rig.logged(), QStringList());
    rig.form.setText(Control::txtHTML, u"anything"_s);
    QVERIFY(rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.bodies.htmlBody(), u"<p>a</p>\r\n"_s);
}

void TestMessageBodies::htmlTypedWithoutAFileFails()
{
    MessageRig rig;
    rig.form.setText(Control::txtHTML, u"typed"_s);
    QVERIFY(!rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.prompts.takeNoticeTexts(), UnableToLoad);
}

void TestMessageBodies::htmlThatCannotBeReadStagesNothing()
{
    MessageRig rig;
    rig.useMessage(Control::txtHTML, rig.documents.filePath(u"missing.htm"_s));
    QVERIFY(!rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.prompts.takeNoticeTexts(), UnableToLoad);
    QVERIFY(!QFile::exists(rig.folder.filePath(u"Temp"_s)));
    QVERIFY(rig.SMTP.calls.isEmpty());
}

void TestMessageBodies::emptyingForgetsBoth()
{
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, "a"));
    rig.useHtml("b");
    QVERIFY(rig.bodies.LoadTextBody());
    QVERIFY(rig.bodies.LoadHtmlBody());
    rig.bodies.empty();
    QCOMPARE(rig.bodies.textBody(), QString());
    QCOMPARE(rig.bodies.htmlBody(), QString());
}

void TestMessageBodies::htmlWithoutLinksPassesAndStaysUnchanged()
{
    MessageRig rig;
    const QByteArray html = "<P>No Picture, <a href=\"a.gif\">a link</a></P>";
    QCOMPARE(loaded(rig, html), QString::fromLatin1(html) + u"\r\n"_s);
    QVERIFY(QFileInfo(rig.folder.filePath(u"Temp"_s)).isDir());
    QVERIFY(rig.SMTP.calls.isEmpty());
    QVERIFY(rig.bodies.CheckLinkedImages(rig.form.tag(Control::txtHTML)));
}

void TestMessageBodies::upperCaseAttributeAndNamePass()
{
    MessageRig rig;
    rig.document(u"pic.gif"_s, "picture");
    const QString body = loaded(rig, "<IMG SRC=\"Pic.GIF\" ALT=\"A Pic\">");
    QCOMPARE(body, u"<IMG SRC=\"cid:1\" ALT=\"A Pic\">\r\n"_s);
    QCOMPARE(rig.SMTP.inlineFiles, QStringList{rig.temp(u"pic.gif"_s)});
    QCOMPARE(readFile(rig.temp(u"pic.gif"_s)), "picture"_ba);
    QVERIFY(rig.bodies.CheckLinkedImages(rig.form.tag(Control::txtHTML)));
}

void TestMessageBodies::webAddressOrAbsolutePathFailsTheCheck_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::newRow("web") << "http://www.example.com/p.gif"_ba;
    QTest::newRow("drive") << "c:\\pics\\p.gif"_ba;
    QTest::newRow("native") << "/etc/passwd"_ba;
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("folder") << "img"_ba;
    QTest::newRow("climbs out") << "../p.gif"_ba;
}

void TestMessageBodies::webAddressOrAbsolutePathFailsTheCheck()
{
    QFETCH(const QByteArray, link);
    MessageRig rig;
    rig.document(u"p.gif"_s, "x");
    rig.document(u"letters/img/q.gif"_s, "x");
    const QString path = rig.document(u"letters/a.htm"_s, "<img src=\"" + link + "\">");
    QVERIFY(!rig.bodies.CheckLinkedImages(path));
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestMessageBodies::linkIntoASubfolderPassesAndItsPathIsHandedOver()
{
    MessageRig rig;
    rig.document(u"img/p.gif"_s, "picture");
    const QString body = loaded(rig, "<img src=\"img/p.gif\">");
    QVERIFY(rig.bodies.CheckLinkedImages(rig.form.tag(Control::txtHTML)));
    // There is no subfolder in the working folder, so the copy fails; the path is given all the
    // same.
    QCOMPARE(rig.SMTP.inlineFiles, QStringList{rig.temp(u"img/p.gif"_s)});
    QVERIFY(!QFile::exists(rig.temp(u"img/p.gif"_s)));
    QCOMPARE(body, u"<img src=\"cid:1\">\r\n"_s);

    MessageRig second;
    second.document(u"img/p.gif"_s, "picture");
    QVERIFY(QDir(second.folder.path()).mkpath(u"Temp/img"_s));
    loaded(second, "<img src=\"img\\P.gif\">");
    QCOMPARE(readFile(second.temp(u"img/p.gif"_s)), "picture"_ba);
}

void TestMessageBodies::samePictureLinkedTwiceIsCopiedAndHandedOverTwice()
{
    MessageRig rig;
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "<img src=\"p.gif\"><img src=\"p.gif\">"),
             u"<img src=\"cid:1\"><img src=\"cid:2\">\r\n"_s);
    const QString copy = rig.temp(u"p.gif"_s);
    QCOMPARE(rig.SMTP.inlineFiles, (QStringList{copy, copy}));
}

void TestMessageBodies::checkFailsAtTheFirstMissingPicture()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, "x");
    const QString path = rig.document(u"a.htm"_s, "src=\"a.gif\" src=\"b.gif\" src=\"a.gif\"");
    QVERIFY(!rig.bodies.CheckLinkedImages(path));
    rig.document(u"b.gif"_s, "x");
    QVERIFY(rig.bodies.CheckLinkedImages(path));
    const QString line = u"Message file '"_s + path + u"' loaded"_s;
    QCOMPARE(rig.logged(), (QStringList{line, line}));
    QVERIFY(rig.SMTP.calls.isEmpty());
    QVERIFY(!QFile::exists(rig.folder.filePath(u"Temp"_s)));
}

void TestMessageBodies::checkOfAnUnreadableFileShowsTheBoxAndPasses()
{
    MessageRig rig;
    QVERIFY(rig.bodies.CheckLinkedImages(rig.documents.filePath(u"missing.htm"_s)));
    QCOMPARE(rig.prompts.takeNoticeTexts(), UnableToLoad);
}

void TestMessageBodies::checkReadsTheWholeText()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, "x");
    const QByteArray html = "src=\"a.gif\"" + QByteArray(40000, ' ') + "src=\"b.gif\"";
    QVERIFY(!rig.bodies.CheckLinkedImages(rig.document(u"a.htm"_s, html)));
}

void TestMessageBodies::checkEndsAtAnUnclosedLink()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, "x");
    QVERIFY(rig.bodies.CheckLinkedImages(
        rig.document(u"a.htm"_s, "<img src=\"a.gif\"><img src=missing.gif>")));
}

void TestMessageBodies::linkThatClimbsOutIsNeitherCopiedNorHandedOver_data()
{
    QTest::addColumn<QByteArray>("link");
    for (const char *link : {"../secret.txt", "..\\secret.txt", "img/../../secret.txt",
                             "img\\..\\..\\secret.txt", "./../secret.txt", "/../secret.txt"})
        QTest::newRow(link) << QByteArray(link);
}

void TestMessageBodies::linkThatClimbsOutIsNeitherCopiedNorHandedOver()
{
    QFETCH(const QByteArray, link);
    MessageRig rig;
    rig.document(u"secret.txt"_s, "secret");
    rig.document(u"letters/img/p.gif"_s, "x");
    const QByteArray html = "<img src=\"" + link + "\">";
    rig.useMessage(Control::txtHTML, rig.document(u"letters/a.htm"_s, html));
    QVERIFY(rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.bodies.htmlBody(), QString::fromLatin1(html) + u"\r\n"_s);
    QVERIFY(rig.SMTP.calls.isEmpty());
    QVERIFY(QDir(rig.folder.filePath(u"Temp"_s)).isEmpty());
    QVERIFY(!QFile::exists(rig.folder.filePath(u"secret.txt"_s)));
}

void TestMessageBodies::symbolicLinkOutOfTheFolderIsNotCopied()
{
    MessageRig rig;
    takeExistingFiles(rig);
    const QString secret = rig.document(u"secret.txt"_s, "secret");
    rig.useMessage(Control::txtHTML, rig.document(u"letters/a.htm"_s, "<img src=\"p.gif\">"));
    QVERIFY(QFile::link(secret, rig.documents.filePath(u"letters/p.gif"_s)));
    QVERIFY(rig.bodies.LoadHtmlBody());
    QCOMPARE(rig.bodies.htmlBody(), u"<img src=\"p.gif\">\r\n"_s);
    QVERIFY(QDir(rig.folder.filePath(u"Temp"_s)).isEmpty());
    QVERIFY(rig.SMTP.inlineFiles.isEmpty());
}

void TestMessageBodies::onlyFilesOfTheWorkingFolderAreHandedOver()
{
    MessageRig rig;
    QStringList asked;
    rig.SMTP.takeRelatedFile = [&asked](const QString &path) {
        asked += path;
        return QString();
    };
    loaded(rig, "src=\"/etc/passwd\" src=\"//server/share/a\" src=\"c:\\a.gif\" src=\".\" "
                "src=\"http://x.example/a.gif\" src=\"\" src=\"..\" src=\"a/b/../../../c\"");
    QCOMPARE(asked.size(), 5);
    for (const QString &path : asked)
        QVERIFY2(QDir::cleanPath(path).startsWith(rig.folder.filePath(u"Temp"_s)),
                 qPrintable(path));
}

void TestMessageBodies::linkThatTheClientCannotTakeStays()
{
    MessageRig rig;
    takeExistingFiles(rig);
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "<img src=\"HTTP://X.example/P.gif\"><img src=\"p.gif\">"),
             u"<img src=\"HTTP://X.example/P.gif\"><img src=\"cid:picture\">\r\n"_s);
}

void TestMessageBodies::unclosedLinkEndsTheStaging()
{
    MessageRig rig;
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "<img src=\"p.gif\"><img src='p.gif'>"),
             u"<img src=\"cid:1\"><img src='p.gif'>\r\n"_s);
    QCOMPARE(rig.SMTP.inlineFiles.size(), 1);
}

void TestMessageBodies::restOfTheBodyKeepsItsLetterCase()
{
    MessageRig rig;
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "Dear FRIEND, <Img Src=\"P.GIF\"> \xC8 SRC=*NOME*\n"
                         "<IMG SRC=\"p.gif\">"),
             // The second link runs up to the first quote of the third.
             u"Dear FRIEND, <Img Src=\"cid:1\"> È SRC=*cid:2\"p.gif\">\r\n"_s);
}

void TestMessageBodies::placesHoldBehindLettersThatGrow()
{
    MessageRig rig;
    rig.document(u"p.gif"_s, "picture");
    const QString text = u"İİİ 😀 <IMG SRC=\"%1\">"_s;
    QCOMPARE(loaded(rig, text.arg(u"P.GIF"_s).toUtf8()), text.arg(u"cid:1"_s) + u"\r\n"_s);
}

void TestMessageBodies::pictureOfTheExactNameIsCopied()
{
    MessageRig rig;
    takeExistingFiles(rig);
    rig.document(u"Logo.gif"_s, "new");
    rig.document(u"logo.gif"_s, "old");
    QCOMPARE(loaded(rig, "<img src=\"Logo.gif\"><img src=\"logo.gif\">"),
             u"<img src=\"cid:new\"><img src=\"cid:old\">\r\n"_s);
    QCOMPARE(rig.SMTP.inlineFiles, (QStringList{rig.temp(u"logo.gif"_s), rig.temp(u"logo.gif"_s)}));
}

void TestMessageBodies::copyOfAnEarlierRunIsOverwritten()
{
    MessageRig rig;
    takeExistingFiles(rig);
    QVERIFY(QDir(rig.folder.path()).mkdir(u"Temp"_s));
    writeFile(rig.temp(u"p.gif"_s), "earlier");
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "<img src=\"p.gif\">"), u"<img src=\"cid:picture\">\r\n"_s);
}

void TestMessageBodies::copyOfAnEarlierRunIsNotHandedOverForAMissingPicture()
{
    MessageRig rig;
    takeExistingFiles(rig);
    QVERIFY(QDir(rig.folder.path()).mkdir(u"Temp"_s));
    writeFile(rig.temp(u"p.gif"_s), "earlier");
    QCOMPARE(loaded(rig, "<img src=\"p.gif\">"), u"<img src=\"p.gif\">\r\n"_s);
    QVERIFY(rig.SMTP.inlineFiles.isEmpty());
}

void TestMessageBodies::workingFolderThatCannotBeMadeIsPassedOver()
{
    MessageRig rig;
    takeExistingFiles(rig);
    writeFile(rig.folder.filePath(u"Temp"_s), "a file");
    rig.document(u"p.gif"_s, "picture");
    QCOMPARE(loaded(rig, "<img src=\"p.gif\">"), u"<img src=\"p.gif\">\r\n"_s);
    QCOMPARE(readFile(rig.folder.filePath(u"Temp"_s)), "a file"_ba);
}

void TestMessageBodies::workingFolderIsEmptiedInOnePass()
{
    MessageRig rig;
    QVERIFY(QDir(rig.folder.path()).mkpath(u"Temp/sub"_s));
    for (const QString &name : {u"p.gif"_s, u".hidden"_s, u"sub/kept.gif"_s})
        writeFile(rig.temp(name), "x");
    QVERIFY(QFile::link(rig.documents.filePath(u"missing"_s), rig.temp(u"dangling"_s)));
    rig.bodies.emptyWorkingFolder();
    QCOMPARE(QDir(rig.temp(u""_s))
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
             QStringList{u"sub"_s});
    QVERIFY(QFile::exists(rig.temp(u"sub/kept.gif"_s)));
}

void TestMessageBodies::missingWorkingFolderIsEmptyAlready()
{
    MessageRig rig;
    rig.bodies.emptyWorkingFolder();
    QVERIFY(!QFile::exists(rig.folder.filePath(u"Temp"_s)));
}
