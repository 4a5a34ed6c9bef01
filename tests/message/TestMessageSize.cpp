#include "TestMessageSize.h"

#include "MessageRig.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 GiB = Q_INT64_C(1) << 30;

/// The content, filled up to that size.
QByteArray filled(const QByteArray &content, qsizetype size)
{
    return content.leftJustified(size, ' ');
}

QString sizeShown(MessageRig &rig)
{
    return rig.size.UpdateMessageSize() ? rig.form.text(Control::lblSize) : u"failed"_s;
}

} // namespace

void TestMessageSize::noFilesAtAll()
{
    MessageRig rig;
    QCOMPARE(rig.form.text(Control::lblSize), u"0 KB"_s);
    QCOMPARE(sizeShown(rig), u"0.00 KB"_s);
}

void TestMessageSize::textFileOf1536BytesAndNothingElse()
{
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, QByteArray(1536, 'x')));
    QCOMPARE(sizeShown(rig), u"1.50 KB"_s);
    QCOMPARE(rig.logged(), QStringList()); // the text file is not read
}

void TestMessageSize::htmlFileAndItsPicture()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, QByteArray(1024, 'x'));
    rig.useHtml(filled("<img src=\"a.gif\">", 2048));
    QCOMPARE(sizeShown(rig), u"3.00 KB"_s);
}

void TestMessageSize::missingPictureCountsMinusOne()
{
    MessageRig rig;
    rig.useHtml(filled("<img src=\"a.gif\">", 2048));
    QCOMPARE(sizeShown(rig), u"2.00 KB"_s); // 2,047 bytes
    rig.useHtml(filled("<img src=\"a.gif\">", 1030));
    QCOMPARE(sizeShown(rig), u"1.00 KB"_s); // 1,029 bytes; 1,030 would be 1.01
    rig.useHtml(filled("<img src=\"a.gif\">", 1031));
    QCOMPARE(sizeShown(rig), u"1.01 KB"_s);
}

void TestMessageSize::singleQuotedLinkRunsToTheNextDoubleQuoteAndCountsMinusOne()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, QByteArray(5000, 'x'));
    rig.useHtml(filled("<img src='a.gif' alt=\"a picture\">", 1030));
    QCOMPARE(sizeShown(rig), u"1.00 KB"_s);
}

void TestMessageSize::everyLinkCounts_data()
{
    QTest::addColumn<QByteArray>("links");
    QTest::addColumn<int>("bytes"); // beside the 5,120 of the HTML file
    QTest::newRow("repeated") << "<img src=\"a.gif\"><img src=\"a.gif\">"_ba << 2048;
    QTest::newRow("no image") << "<script src=\"a.gif\"></script>"_ba << 1024;
    QTest::newRow("end of another name") << "<img data-src=\"a.gif\">"_ba << 1024;
    QTest::newRow("letter case") << "<IMG SRC=\"A.Gif\">"_ba << 1024;
    QTest::newRow("subfolder") << "<img src=\"img/b.gif\">"_ba << 2048;
    QTest::newRow("subfolder, backslash") << "<img src=\"IMG\\B.GIF\">"_ba << 2048;
    QTest::newRow("text without a tag") << "src=\"a.gif\""_ba << 1024;
    QTest::newRow("inside a link") << "src=\"xsrc=\"a.gif\""_ba << 1023;
    QTest::newRow("hundred web addresses")
        << QByteArray("src=\"http://x.example/a.gif\"").repeated(100) << -100;
}

void TestMessageSize::everyLinkCounts()
{
    QFETCH(const QByteArray, links);
    QFETCH(const int, bytes);
    MessageRig rig;
    rig.document(u"a.gif"_s, QByteArray(1024, 'x'));
    rig.document(u"img/b.gif"_s, QByteArray(2048, 'x'));
    rig.useHtml(filled(links, 5120));
    QCOMPARE(sizeShown(rig), sizeText(5120 + bytes, u'.'));
}

void TestMessageSize::pictureThatClimbsOutCountsMinusOne()
{
    MessageRig rig;
    rig.document(u"a.gif"_s, QByteArray(5000, 'x'));
    const QString path = rig.document(u"letters/a.htm"_s, filled("<img src=\"../a.gif\">", 1030));
    rig.useMessage(Control::txtHTML, path);
    QCOMPARE(sizeShown(rig), u"1.00 KB"_s);
}

void TestMessageSize::attachmentsCount()
{
    MessageRig rig;
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, QByteArray(1024, 'x')));
    const QString path = rig.document(u"a.pdf"_s, QByteArray(10240, 'x'));
    rig.attachments.replaceAll({path, path});
    QCOMPARE(sizeShown(rig), u"21.00 KB"_s);
}

void TestMessageSize::missingFilesNeverFail()
{
    MessageRig rig;
    rig.form.setTag(Control::txtEmail, u"/missing.txt"_s);
    QCOMPARE(sizeShown(rig), u"0.00 KB"_s); // -1 byte
    QStringList missing;
    for (int i = 0; i < 2047; ++i)
        missing += u"/missing.pdf"_s;
    rig.attachments.replaceAll(missing);
    QCOMPARE(sizeShown(rig), u"-2.00 KB"_s);
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestMessageSize::htmlFileIsReadAndLoggedEachTime()
{
    MessageRig rig;
    const QString path = rig.useHtml("x");
    QVERIFY(rig.size.UpdateMessageSize());
    QVERIFY(rig.size.UpdateMessageSize());
    const QString line = u"Message file '"_s + path + u"' loaded"_s;
    QCOMPARE(rig.logged(), (QStringList{line, line}));
}

void TestMessageSize::unreadableHtmlShowsTheBoxAndCountsMinusOne()
{
    MessageRig rig;
    rig.form.setTag(Control::txtHTML, rig.documents.path());
    rig.attachments.replaceAll({rig.document(u"a"_s, QByteArray(1030, 'x'))});
    QCOMPARE(sizeShown(rig), u"1.00 KB"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{u"Unable to load the specified message!"_s});
}

void TestMessageSize::linkWithoutAClosingQuoteFails()
{
    for (const QByteArray &html : {"<img src=\"a.gif\"><img src=\"b.gif>"_ba, "src="_ba}) {
        MessageRig rig;
        const QString path = rig.useHtml(html);
        if (html == "src=")
            writeFile(path, html); // its line end is the file's end
        QVERIFY(!rig.size.UpdateMessageSize());
        const QList<Notice> notices = rig.prompts.takeNotices();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices[0].icon, Icon::Critical);
        QCOMPARE(notices[0].title, u"Error"_s);
        QCOMPARE(notices[0].text, u"A link in the HTML message has no closing quote: "_s + path);
        QCOMPARE(rig.form.text(Control::lblSize), u"0 KB"_s);
    }
}

void TestMessageSize::moreThanTwoGibibytesFail()
{
    MessageRig rig;
    const QString large = rig.documents.filePath(u"large"_s);
    makeSparseFile(large, 2 * GiB - 1);
    rig.attachments.replaceAll({large});
    QCOMPARE(sizeShown(rig), u"2097152.00 KB"_s);
    rig.attachments.add(rig.document(u"small"_s, "x"));
    QCOMPARE(sizeShown(rig), u"failed"_s);
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"The message is larger than 2 GB."_s});
    QCOMPARE(rig.form.text(Control::lblSize), u"2097152.00 KB"_s);
}

void TestMessageSize::eachAdditionIsChecked()
{
    MessageRig rig;
    const QString large = rig.documents.filePath(u"large"_s);
    const QString wrapped = rig.documents.filePath(u"wrapped"_s); // its size reads as -2 GiB
    makeSparseFile(large, 2 * GiB - 1);
    makeSparseFile(wrapped, 2 * GiB);
    // The sum of all would fit.
    rig.attachments.replaceAll({large, large, wrapped});
    QCOMPARE(sizeShown(rig), u"failed"_s);
    rig.attachments.replaceAll({wrapped, wrapped, large});
    QCOMPARE(sizeShown(rig), u"failed"_s);
    rig.attachments.replaceAll({large, wrapped, large});
    QCOMPARE(sizeShown(rig), u"2097152.00 KB"_s);
    QCOMPARE(rig.prompts.takeNotices().size(), 2);
}

void TestMessageSize::failuresAreItalianInItalian()
{
    const ItalianTexts italian;
    MessageRig rig(Language::Italian);
    const QString path = rig.useHtml("src=\"a");
    QVERIFY(!rig.size.UpdateMessageSize());
    rig.form.setTag(Control::txtHTML, {});
    const QString large = rig.documents.filePath(u"large"_s);
    makeSparseFile(large, 2 * GiB - 1);
    rig.attachments.replaceAll({large, large});
    QVERIFY(!rig.size.UpdateMessageSize());
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 2);
    QCOMPARE(notices[0].title, u"Errore"_s);
    QCOMPARE(notices[0].text,
             u"Un collegamento del messaggio HTML non ha le virgolette di chiusura: "_s + path);
    QCOMPARE(notices[1].text, u"Il messaggio supera i 2 GB."_s);
}

void TestMessageSize::failureEndsTheCommandThatAsked()
{
    MessageRig rig;
    const QString html = rig.useHtml("src=\"a");
    rig.attachmentCommands.attach(rig.document(u"a.pdf"_s, "x"));
    rig.attachmentCommands.cmdRimuovi_Click(0);
    // What was done stays done; only what comes behind the size is left out.
    QVERIFY(rig.attachments.paths().isEmpty());
    const QString line = u"Message file '"_s + html + u"' loaded"_s;
    QCOMPARE(rig.logged(), (QStringList{line, line}));
    QCOMPARE(rig.prompts.takeNotices().size(), 2);
}

void TestMessageSize::decimalSignIsTheUsers()
{
    MessageRig rig;
    rig.formats.sign = u',';
    rig.useMessage(Control::txtEmail, rig.document(u"a.txt"_s, QByteArray(1536, 'x')));
    QCOMPARE(sizeShown(rig), u"1,50 KB"_s);
}

void TestMessageSize::sizeTexts_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << qint64(0) << u"0.00 KB"_s;
    QTest::newRow("less than half a hundredth") << qint64(5) << u"0.00 KB"_s;
    QTest::newRow("more than half a hundredth") << qint64(6) << u"0.01 KB"_s;
    QTest::newRow("exactly half a hundredth") << qint64(128) << u"0.13 KB"_s;
    QTest::newRow("1 KB") << qint64(1024) << u"1.00 KB"_s;
    QTest::newRow("rounded up to a whole") << qint64(1023) << u"1.00 KB"_s;
    QTest::newRow("largest") << qint64(2147483647) << u"2097152.00 KB"_s;
    QTest::newRow("zero has no sign") << qint64(-5) << u"0.00 KB"_s;
    QTest::newRow("negative") << qint64(-6) << u"-0.01 KB"_s;
    QTest::newRow("negative half") << qint64(-128) << u"-0.13 KB"_s;
    QTest::newRow("smallest") << qint64(-2147483648LL) << u"-2097152.00 KB"_s;
}

void TestMessageSize::sizeTexts()
{
    QFETCH(const qint64, bytes);
    QFETCH(const QString, text);
    QCOMPARE(sizeText(bytes, u'.'), text);
}
