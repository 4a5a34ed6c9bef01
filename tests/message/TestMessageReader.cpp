#include "TestMessageReader.h"

#include "MessageRig.h"
#include "support/AsNobody.h"
#include "support/ItalianTexts.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString Failure = u"Unable to load the specified message!"_s;

QByteArray htmlDeclaring(const QByteArray &declaration, const QByteArray &body)
{
    return "<html><head><meta " + declaration + "></head><body>" + body + "</body></html>";
}

} // namespace

void TestMessageReader::oneLineFileWithoutAnEndGetsOne()
{
    MessageRig rig;
    const QString path = rig.document(u"a.txt"_s, "Dear *NOME*");
    QString content;
    QVERIFY(rig.reader.LoadMessageFile(content, path, MessageKind::Text));
    QCOMPARE(content, u"Dear *NOME*\r\n"_s);
}

void TestMessageReader::everyLineEndBecomesCrLf_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("content");
    QTest::newRow("CR LF") << "a\r\nb\r\n"_ba << u"a\r\nb\r\n"_s;
    QTest::newRow("LF") << "a\nb\n"_ba << u"a\r\nb\r\n"_s;
    QTest::newRow("CR") << "a\rb\r"_ba << u"a\r\nb\r\n"_s;
    QTest::newRow("mixed, with empty lines") << "a\n\r\n\rb"_ba << u"a\r\n\r\n\r\nb\r\n"_s;
    QTest::newRow("an end alone") << "\n"_ba << u"\r\n"_s;
}

void TestMessageReader::everyLineEndBecomesCrLf()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, content);
    MessageRig rig;
    QString read;
    for (const MessageKind kind : {MessageKind::Text, MessageKind::Html}) {
        QVERIFY(rig.reader.LoadMessageFile(read, rig.document(u"a.txt"_s, file), kind));
        QCOMPARE(read, content);
    }
}

void TestMessageReader::emptyFileIsAnEmptyMessage()
{
    MessageRig rig;
    QString content;
    QVERIFY(rig.reader.LoadMessageFile(content, rig.document(u"a.txt"_s, {}), MessageKind::Text));
    QCOMPARE(content, QString());
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestMessageReader::readingIsLogged()
{
    const ItalianTexts italian; // the log is English all the same
    MessageRig rig(Language::Italian);
    const QString path = rig.document(u"a.txt"_s, "a");
    QString content;
    QVERIFY(rig.reader.LoadMessageFile(content, path, MessageKind::Text));
    QCOMPARE(rig.logged(), QStringList{u"Message file '"_s + path + u"' loaded"_s});
}

void TestMessageReader::oldContentGoesFirst()
{
    MessageRig rig;
    QString content = u"old"_s;
    QVERIFY(
        rig.reader.LoadMessageFile(content, rig.document(u"a.txt"_s, "new"), MessageKind::Text));
    QCOMPARE(content, u"new\r\n"_s);
    QVERIFY(!rig.reader.LoadMessageFile(content, rig.documents.filePath(u"missing"_s),
                                        MessageKind::Text));
    QCOMPARE(content, QString());
}

void TestMessageReader::fileThatCannotBeReadShowsTheBox_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"missing.txt"_s << u"the file does not exist"_s;
    QTest::newRow("folder") << u"folder"_s << u"it is a folder"_s;
    QTest::newRow("pipe") << u"pipe"_s << u"it is not a regular file"_s;
}

void TestMessageReader::fileThatCannotBeReadShowsTheBox()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    MessageRig rig;
    QVERIFY(QDir(rig.documents.path()).mkdir(u"folder"_s));
    QCOMPARE(::mkfifo(qPrintable(rig.documents.filePath(u"pipe"_s)), 0600), 0);
    const QString path = rig.documents.filePath(name);
    QString content;
    QVERIFY(!rig.reader.LoadMessageFile(content, path, MessageKind::Html));
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].icon, Icon::Critical);
    QCOMPARE(notices[0].title, u"Message"_s);
    QCOMPARE(notices[0].text, Failure);
    QCOMPARE(notices[0].detail, path + u": "_s + reason);
    QCOMPARE(rig.logged(), QStringList());
}

void TestMessageReader::unreadableFileShowsTheBox()
{
    MessageRig rig;
    const QString path = rig.document(u"a.txt"_s, "secret");
    QCOMPARE(::chmod(qPrintable(rig.documents.path()), 0755), 0);
    QCOMPARE(::chmod(qPrintable(path), 0), 0);
    const AsNobody nobody;
    QString content;
    QVERIFY(!rig.reader.LoadMessageFile(content, path, MessageKind::Text));
    QCOMPARE(rig.prompts.takeNotices().at(0).detail, path + u": Permission denied"_s);
}

void TestMessageReader::boxIsItalianInItalian()
{
    const ItalianTexts italian;
    MessageRig rig(Language::Italian);
    rig.bodies.reportUnreadable({});
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices[0].title, u"Messaggio"_s);
    QCOMPARE(notices[0].text, u"Impossibile caricare il messaggio specificato!"_s);
}

void TestMessageReader::encodingOfText_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("content");
    QTest::newRow("ASCII") << "plain"_ba << u"plain"_s;
    QTest::newRow("code page") << "perch\xE9 \x80"_ba << u"perché €"_s;
    QTest::newRow("UTF-8") << "perch\xC3\xA9 \xE2\x82\xAC"_ba << u"perché €"_s;
    QTest::newRow("UTF-8 with mark") << "\xEF\xBB\xBFplain"_ba << u"plain"_s;
}

void TestMessageReader::encodingOfText()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, content);
    const CodePage codePage("windows-1252");
    QCOMPARE(decodeMessage(file, MessageKind::Text, codePage), content);
    QCOMPARE(decodeMessage(file, MessageKind::Html, codePage), content);
}

void TestMessageReader::encodingOfHtml_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("attribute") << "charset=\"windows-1251\""_ba
                               << "\xCF\xF0\xE8"_ba << u"При"_s;
    QTest::newRow("no quotes") << "charset=windows-1251"_ba
                               << "\xCF\xF0\xE8"_ba << u"При"_s;
    QTest::newRow("single quotes") << "charset='iso-8859-2'"_ba
                                   << "\xB3"_ba << u"ł"_s;
    QTest::newRow("content type")
        << "http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-15\""_ba
        << "\xA4"_ba << u"€"_s;
    QTest::newRow("upper case") << "CHARSET=\"KOI8-R\""_ba
                                << "\xF0\xD2\xC9"_ba << u"При"_s;
    QTest::newRow("many bytes a character") << "charset=shift_jis"_ba
                                            << "\x93\xFA\x96\x7B"_ba << u"日本"_s;
    QTest::newRow("UTF-8 and so it is") << "charset=utf-8"_ba
                                        << "\xC3\xA8"_ba << u"è"_s;
    QTest::newRow("UTF-8 and it is not") << "charset=utf-8"_ba
                                         << "\xE8"_ba << u"è"_s;
    QTest::newRow("US-ASCII and it is not") << "charset=us-ascii"_ba
                                            << "\xE8"_ba << u"è"_s;
    QTest::newRow("Shift JIS and it is not") << "charset=shift_jis"_ba
                                             << "\xE8"_ba << u"è"_s;
    QTest::newRow("comes before the look of the bytes") << "charset=windows-1252"_ba
                                                        << "\xC3\xA8"_ba << u"Ã¨"_s;
    QTest::newRow("unknown") << "charset=no-such-set"_ba
                             << "\xE8"_ba << u"è"_s;
    QTest::newRow("empty") << "charset=\"\""_ba
                           << "\xE8"_ba << u"è"_s;
    QTest::newRow("UTF-16, which it cannot be") << "charset=utf-16"_ba
                                                << "\xE8"_ba << u"è"_s;
    QTest::newRow("UTF-32, which it cannot be") << "charset=utf-32"_ba
                                                << "ASCII"_ba << u"ASCII"_s;
    QTest::newRow("UTF-16 by another name") << "charset=unicode"_ba
                                            << "\xE8"_ba << u"è"_s;
    QTest::newRow("UTF-16 without its dash") << "charset=utf16"_ba
                                             << "\xE8 "_ba << u"è "_s;
    QTest::newRow("not even ASCII") << "charset=ibm037"_ba
                                    << "\xE8"_ba << u"è"_s;
    QTest::newRow("half a character") << "charset=utf-7"_ba
                                      << "+2AA-"_ba << u"+2AA-"_s;
    QTest::newRow("too far down") << "name=\""_ba + QByteArray(1024, 'x') +
                                         "\"><meta charset=windows-1251"_ba
                                  << "\xE8"_ba << u"è"_s;
}

void TestMessageReader::encodingOfHtml()
{
    QFETCH(const QByteArray, declaration);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const QByteArray file = htmlDeclaring(declaration, bytes);
    const QString expected = QString::fromLatin1(htmlDeclaring(declaration, "?"))
                                 .replace(u"<body>?"_s, u"<body>"_s + text);
    QCOMPARE(decodeMessage(file, MessageKind::Html, CodePage("windows-1252")), expected);
    // The mark of UTF-8 comes before everything else.
    QCOMPARE(decodeMessage("\xEF\xBB\xBF" + expected.toUtf8(), MessageKind::Html,
                           CodePage("windows-1252")),
             expected);
}

void TestMessageReader::declarationThatTheLastByteBreaksIsNotKept()
{
    QCOMPARE(
        decodeMessage("charset=utf-8 \xC3\xA8 \xC3", MessageKind::Html, CodePage("windows-1252")),
        u"charset=utf-8 Ã¨ Ã"_s);
    QCOMPARE(decodeMessage("charset=shift_jis \x93\xFA \x93", MessageKind::Html,
                           CodePage("windows-1252")),
             u"charset=shift_jis “ú “"_s);
}

void TestMessageReader::declarationInATextFileIsText()
{
    const CodePage codePage("windows-1252");
    QCOMPARE(decodeMessage("charset=windows-1251 \xE8", MessageKind::Text, codePage),
             u"charset=windows-1251 è"_s);
}
