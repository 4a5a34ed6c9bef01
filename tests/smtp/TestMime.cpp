#include "smtp/TestMime.h"

#include "smtp/MessageUnderTest.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

QString TestMime::file(const QString &name, const QByteArray &content)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file for the test");
    return path;
}

void TestMime::bodies_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("encoding");

    const auto plain = "7bit"_qba;
    const auto quoted = "quoted-printable"_qba;
    QTest::newRow("empty") << u""_s << plain;
    QTest::newRow("a line") << u"Hello\r\n"_s << plain;
    QTest::newRow("a line end alone") << u"\r\n"_s << plain;
    QTest::newRow("empty lines at the end") << u"Hello\r\n\r\n\r\n"_s << plain;
    QTest::newRow("dots at line starts") << u".\r\n..\r\n.a\r\n\r\n.\r\n"_s << plain;
    QTest::newRow("blanks at line ends") << u"a \r\nb\t\r\n"_s << plain;
    QTest::newRow("a line of 998") << QString(998, u'x') + u"\r\n"_s << plain;
    QTest::newRow("a line of 999") << QString(999, u'x') + u"\r\n"_s << quoted;
    QTest::newRow("a last line of 999") << u"a\r\n"_s + QString(999, u'x') << quoted;
    QTest::newRow("accents") << u"Perché no?\r\nÈ così.\r\n"_s << quoted;
    QTest::newRow("accents, blanks at line ends") << u"è \r\n è\t\r\nend "_s << quoted;
    QTest::newRow("accents, dots and equal signs") << u".\r\n=è=\r\n..=3D\r\n"_s << quoted;
    QTest::newRow("beyond the basic plane") << u"😀😀\r\n"_s.repeated(50) << quoted;
    QTest::newRow("NUL") << u"a\0b\r\n"_s << quoted;
    QTest::newRow("other control characters") << u"a\x1b[1m\x7f\r\n"_s << quoted;
    QTest::newRow("long lines of accents") << u"è"_s.repeated(5000) << quoted;
    QTest::newRow("many lines") << u"Perché no?\r\n"_s.repeated(3000) << quoted;
    QTest::newRow("what looks like a boundary") << u"--=_\r\n--\r\n"_s << plain;
}

void TestMime::bodies()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, encoding);
    MessageUnderTest mail;
    mail.message.TextBody = text;
    ReadPart message = mail.read();
    QCOMPARE(mail.problems, QStringList());
    QCOMPARE(message.header("Content-Transfer-Encoding"), encoding);
    QString read = QString::fromUtf8(message.body);
    // A message of one part ends in a line end, whatever its text does.
    if (!text.isEmpty() && !text.endsWith(u"\r\n") && read.endsWith(u"\r\n"))
        read.chop(2);
    QCOMPARE(read, text);

    // Other line ends are the same text.
    mail.message.TextBody = QString(text).replace(u"\r\n"_s, u"\n"_s);
    QCOMPARE(mail.read().body, message.body);
    mail.message.TextBody = QString(text).replace(u"\r\n"_s, u"\r"_s);
    QCOMPARE(mail.read().body, message.body);

    // Inside a multipart it is the same to the last byte.
    mail.message.TextBody = text;
    mail.message.HtmlBody = text + u"<p>"_s;
    message = mail.read();
    QCOMPARE(mail.problems, QStringList());
    QCOMPARE(message.outline(), u"multipart/alternative[text/plain text/html]"_s);
    QCOMPARE(QString::fromUtf8(message.parts[0].body), text);
    QCOMPARE(QString::fromUtf8(message.parts[1].body), text + u"<p>"_s);
}

void TestMime::structure_data()
{
    QTest::addColumn<bool>("html");
    QTest::addColumn<bool>("picture");
    QTest::addColumn<int>("attachments");
    QTest::addColumn<QString>("outline");

    const QString related = u"multipart/related[text/html image/png]"_s;
    QTest::newRow("text") << false << false << 0 << u"text/plain"_s;
    QTest::newRow("text and HTML")
        << true << false << 0 << u"multipart/alternative[text/plain text/html]"_s;
    QTest::newRow("HTML with a picture")
        << true << true << 0 << u"multipart/alternative[text/plain %1]"_s.arg(related);
    QTest::newRow("text and an attachment")
        << false << false << 1 << u"multipart/mixed[text/plain application/pdf]"_s;
    QTest::newRow("everything")
        << true << true << 2
        << u"multipart/mixed[multipart/alternative[text/plain %1] application/pdf "
           u"application/pdf]"_s.arg(related);
}

void TestMime::structure()
{
    QFETCH(bool, html);
    QFETCH(bool, picture);
    QFETCH(int, attachments);
    QFETCH(QString, outline);
    MessageUnderTest mail;
    const QString reference = mail.builder.inlineFiles().add(file(u"p.png"_s, "\x89PNG\r\n"));
    QVERIFY(reference.startsWith(u"cid:"));
    if (html)
        mail.message.HtmlBody = u"<p>è</p>"_s;
    if (picture)
        mail.message.HtmlBody += u"<img src=\"%1\">"_s.arg(reference);
    mail.attachments = QStringList(attachments, file(u"a.pdf"_s, "%PDF-1.4"));
    for (int message = 0; message < 2; ++message) {
        const ReadPart read = mail.read();
        QCOMPARE(mail.problems, QStringList());
        QCOMPARE(read.outline(), outline);
        // Each boundary is another one.
        const QByteArray bytes = mail.bytes();
        QSet<QByteArray> boundaries;
        for (qsizetype at = 0; (at = bytes.indexOf("boundary=", at)) >= 0; ++at)
            boundaries += bytes.sliced(at, bytes.indexOf('\r', at) - at);
        QCOMPARE(boundaries.size(), outline.count(u"multipart/"_s));
    }
}

void TestMime::attachmentNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("read");

    for (const QString &name :
         {u"letter.pdf"_s, u"two words.pdf"_s, u"perché.pdf"_s, u"山田.pdf"_s,
          u"it's; \"this\".pdf"_s, u"100% =?.pdf"_s,
          u"a rather long name of a file with perché and così, which fills several lines.pdf"_s})
        QTest::addRow("%s", qUtf8Printable(name)) << name << name;
    QTest::newRow("line ends") << u"a\r\nb\n.pdf"_s << u"a  b .pdf"_s;
}

void TestMime::attachmentNames()
{
    QFETCH(QString, name);
    QFETCH(QString, read);
    MessageUnderTest mail;
    const QByteArray content = QByteArray("%PDF-1.4\n\0\xff.\r\n", 14).repeated(40);
    mail.attachments = {file(name, content)};
    const ReadPart message = mail.read();
    QCOMPARE(mail.problems, QStringList());
    const ReadPart &part = message.parts.at(1);
    QVERIFY(part.header("Content-Disposition").startsWith("attachment;"));
    QCOMPARE(parameter(part.header("Content-Disposition"), "filename"), read);
    QCOMPARE(parameter(part.header("Content-Type"), "name"), read);
    QCOMPARE(part.body, content);
}

void TestMime::attachmentTypes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("type");

    QTest::newRow("by name") << u"a.pdf"_s << "%PDF-1.4"_qba
                             << "application/pdf"_qba;
    QTest::newRow("by content") << u"picture"_s << "\x89PNG\r\n\x1a\n"_qba
                                << "image/png"_qba;
    QTest::newRow("unknown") << u"a.qqq"_s << "\x01\x02\x03"_qba
                             << "application/octet-stream"_qba;
    QTest::newRow("empty") << u"empty"_s << ""_qba
                           << "application/octet-stream"_qba;
    QTest::newRow("a message cannot be base64") << u"a.eml"_s << "From: a@b\r\n\r\nx"_qba
                                                << "application/octet-stream"_qba;
}

void TestMime::attachmentTypes()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, type);
    MessageUnderTest mail;
    mail.attachments = {file(name, content)};
    const ReadPart message = mail.read();
    QCOMPARE(mail.problems, QStringList());
    QCOMPARE(message.parts.at(1).header("Content-Type").split(';').first(), type);
    QCOMPARE(message.parts.at(1).body, content);
}

void TestMime::attachmentsAreReadAgainWhenChanged()
{
    MessageUnderTest mail;
    mail.attachments = {file(u"c.txt"_s, "first")};
    QCOMPARE(mail.read().parts.at(1).body, "first"_qba);
    file(u"c.txt"_s, "second");
    QCOMPARE(mail.read().parts.at(1).body, "second"_qba);
    // The same size, another time.
    QFile changed(file(u"c.txt"_s, "SECOND"));
    QVERIFY(changed.open(QIODevice::ReadWrite));
    QVERIFY(changed.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000),
                                QFileDevice::FileModificationTime));
    changed.close();
    QCOMPARE(mail.read().parts.at(1).body, "SECOND"_qba);
}

void TestMime::attachmentsThatCannotBeSent()
{
    MessageUnderTest mail;
    const QString good = file(u"good.txt"_s, "x");
    const QString vanishing = file(u"vanishing.txt"_s, "x");
    mail.attachments = {good, vanishing};
    QCOMPARE(mail.read().parts.size(), 3);
    QVERIFY(QFile::remove(vanishing));
    for (const QString &bad : {vanishing, m_folder.path(), u""_s}) {
        const auto letter = mail.builder.build(mail.message, {good, bad});
        QVERIFY(!letter);
        QVERIFY(letter.error().startsWith(bad + u": "_s));
        QVERIFY(!letter.error().contains(u'\n'));
    }
    QVERIFY(mail.builder.build(mail.message, {good}));
}

void TestMime::attachmentsAreShared()
{
    MessageUnderTest mail;
    mail.attachments = {file(u"big.bin"_s, QByteArray(100'000, '.'))};
    const auto largest = [&] {
        const auto letter = mail.builder.build(mail.message, mail.attachments);
        const auto &segments = letter->content.segments;
        return std::ranges::max_element(segments, {},
                                        [](const Segment &s) { return s.lines.size(); })
            ->lines;
    };
    const QByteArray first = largest();
    QVERIFY(first.size() > 100'000);
    mail.message.RecipientAddress = u"bert@example.net"_s;
    QCOMPARE(largest().constData(), first.constData());
}

void TestMime::inlineFiles()
{
    MessageUnderTest mail;
    InlineFiles &files = mail.builder.inlineFiles();
    const QByteArray content = "\x89PNG\r\n\x1a\n picture"_qba;
    const QString path = file(u"città.png"_s, content);
    const QString first = files.add(path);
    const QString second = files.add(path);
    QVERIFY(first != second);
    QCOMPARE(files.add(m_folder.filePath(u"missing.png"_s)), QString());
    QCOMPARE(files.add(m_folder.path()), QString());
    QVERIFY(QFile::remove(path)); // it was read at once

    const auto ids = [&](const QString &html) {
        mail.message.HtmlBody = html;
        const ReadPart read = mail.read();
        QStringList found;
        for (const ReadPart &part : read.parts.at(1).parts) {
            if (part.header("Content-Type").startsWith("image/")) {
                found +=
                    u"cid:"_s + QString::fromLatin1(part.header("Content-ID").sliced(1).chopped(1));
                if (part.body != content ||
                    !part.header("Content-Disposition").startsWith("inline;"))
                    found += u"damaged"_s;
            }
        }
        return found;
    };
    const QString tag = u"<p style='background:url(%1)'><img src=\"%2\">"_s;
    QCOMPARE(ids(tag.arg(first, second)), QStringList({first, second}));
    QCOMPARE(ids(tag.arg(second, second)), QStringList({second}));
    QCOMPARE(ids(tag.arg(u"cid:"_s, u"cid:x"_s)), QStringList());
    QCOMPARE(ids(u"the text ends in "_s + first), QStringList({first}));

    // A new set begins with the first file after it was announced.
    files.beginNewSet();
    QCOMPARE(ids(tag.arg(first, second)), QStringList({first, second}));
    const QString third = files.add(file(u"città.png"_s, content));
    QCOMPARE(ids(tag.arg(first, third)), QStringList({third}));
    const QString fourth = files.add(file(u"città.png"_s, content));
    QCOMPARE(ids(tag.arg(fourth, third)), QStringList({third, fourth}));
}
