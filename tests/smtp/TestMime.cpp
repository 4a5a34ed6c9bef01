#include "smtp/TestMime.h"

#include "smtp/MimeReader.h"
#include "smtp/client/LetterBuilder.h"
#include "support/FakeTime.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A builder and a message to change.
struct Builder
{
    FakeClock clock;
    LetterBuilder builder{clock};
    OutgoingMessage message;
    QStringList attachments;
    QStringList problems; ///< of the last message read

    Builder()
    {
        message.RecipientAddress = u"anna@example.net"_s;
        message.FromAddress = u"sender@example.org"_s;
        message.FromName = u"Sender"_s;
        message.Subject = u"Greetings"_s;
        message.Mailer = u"Sorvanta"_s;
        message.DateText = u"Sat, 21 Nov 2026 09:00:00"_s;
        message.ExtraHeaders = u"Message-ID: <1@pc>\r\n"_s;
        message.TextBody = u"Hello\r\n"_s;
    }

    QByteArray bytes()
    {
        const auto letter = builder.build(message, attachments);
        return letter ? letter->content.toByteArray() : "not built: " + letter.error().toUtf8();
    }

    ReadPart read()
    {
        problems.clear();
        return readMessage(bytes(), problems);
    }
};

} // namespace

QString TestMime::file(const QString &name, const QByteArray &content)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file for the test");
    return path;
}

void TestMime::headers()
{
    Builder builder;
    QCOMPARE(builder.bytes(), "From: Sender <sender@example.org>\r\n"
                              "To: anna@example.net\r\n"
                              "Subject: Greetings\r\n"
                              "Date: Sat, 21 Nov 2026 09:00:00 +0100\r\n"
                              "Message-ID: <1@pc>\r\n"
                              "X-Mailer: Sorvanta\r\n"
                              "MIME-Version: 1.0\r\n"
                              "Content-Type: text/plain; charset=utf-8\r\n"
                              "Content-Transfer-Encoding: 7bit\r\n"
                              "\r\n"
                              "Hello\r\n"_qba);
    // The next message differs in what is its own, and in nothing else.
    const QByteArray first = builder.bytes();
    builder.message.RecipientAddress = u"bert@example.net"_s;
    builder.message.ExtraHeaders = u"Message-ID: <2@pc>\r\n"_s;
    QCOMPARE(builder.bytes(),
             QByteArray(first).replace("anna@", "bert@").replace("<1@pc>", "<2@pc>"));
    builder.message.Subject = u"Other"_s;
    QCOMPARE(builder.read().header("Subject"), "Other"_qba);
}

void TestMime::receipt()
{
    Builder builder;
    builder.message.ReceiptAddress = u"sender@example.org"_s;
    QVERIFY(!builder.bytes().contains("Disposition-Notification-To"));
    builder.message.RequestReceipt = true;
    QCOMPARE(builder.read().header("Disposition-Notification-To"), "sender@example.org"_qba);
    builder.message.ReceiptAddress = u"x\r\nBcc: y@z"_s;
    QVERIFY(!builder.builder.build(builder.message, {}));
}

void TestMime::group()
{
    Builder builder;
    builder.message.RecipientList = true;
    builder.message.RecipientAddress = u"anna@example.net,,bert@example.net"_s;
    QCOMPARE(builder.read().header("To"), "undisclosed-recipients:;"_qba);
    QVERIFY(!builder.bytes().contains("example.net"));
    const auto letter = builder.builder.build(builder.message, {});
    QCOMPARE(letter->recipients.size(), 3);
    QVERIFY(!letter->recipients[1]);
    QCOMPARE(LetterBuilder::recipientCount(builder.message), 3);

    builder.message.RecipientAddress = u"anna@example.net"_s;
    QCOMPARE(builder.read().header("To"), "anna@example.net"_qba);
}

void TestMime::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("from"); // empty: only read back

    QTest::newRow("none") << u""_s << "sender@example.org"_qba;
    QTest::newRow("blanks") << u"  "_s << "sender@example.org"_qba;
    QTest::newRow("plain") << u"Anna Rossi"_s << "Anna Rossi <sender@example.org>"_qba;
    QTest::newRow("comma") << u"Rossi, Anna"_s << "\"Rossi, Anna\" <sender@example.org>"_qba;
    QTest::newRow("quotes") << u"Anna \"la\" Rossi"_s
                            << "\"Anna \\\"la\\\" Rossi\" <sender@example.org>"_qba;
    QTest::newRow("an address") << u"A <b@c>"_s << "\"A <b@c>\" <sender@example.org>"_qba;
    QTest::newRow("backslash") << u"a\\b"_s << "\"a\\\\b\" <sender@example.org>"_qba;
    QTest::newRow("accents") << u"Niccolò Perché"_s << ""_qba;
    QTest::newRow("accents and comma") << u"Rossi, Niccolò"_s << ""_qba;
    QTest::newRow("another script") << u"山田太郎 と 申します"_s << ""_qba;
    QTest::newRow("beyond the basic plane") << u"Anna 😀"_s << ""_qba;
    QTest::newRow("long") << u"Accademia di Santa Cecilia, sezione della città di "_s.repeated(6)
                          << ""_qba;
    QTest::newRow("long without blanks") << u"x"_s.repeated(1500) << ""_qba;
    QTest::newRow("like an encoded word") << u"=?utf-8?q?x?="_s << ""_qba;
}

void TestMime::names()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, from);
    Builder builder;
    builder.message.FromName = name;
    const QByteArray value = builder.read().header("From");
    QCOMPARE(builder.problems, QStringList());
    if (!from.isEmpty()) {
        QCOMPARE(value, from);
        return;
    }
    QVERIFY(value.endsWith(" <sender@example.org>"));
    QString read = decodedWords(value.chopped(21)).trimmed();
    read.remove(u'"'); // words that stand in quotes beside encoded ones
    QCOMPARE(read, name.trimmed());
}

void TestMime::subjects_data()
{
    QTest::addColumn<QString>("subject");
    QTest::addColumn<bool>("isPlain");

    QTest::newRow("empty") << u""_s << true;
    QTest::newRow("plain") << u"Your letter, number 7: \"hello\" <now>"_s << true;
    QTest::newRow("accents") << u"Perché no? È così"_s << false;
    QTest::newRow("one accent") << u"Plain words and one perché among them"_s << false;
    QTest::newRow("another script") << u"お知らせ"_s.repeated(30) << false;
    QTest::newRow("long") << u"parola "_s.repeated(60) + u"fine"_s << true;
    QTest::newRow("long without blanks") << u"x"_s.repeated(1500) << false;
    QTest::newRow("like an encoded word") << u"=?utf-8?b?eA==?= is no subject"_s << false;
    QTest::newRow("half a character") << u"a"_s + QChar(0xd83d) + u"b"_s << true; // becomes "?"
}

void TestMime::subjects()
{
    QFETCH(QString, subject);
    QFETCH(bool, isPlain);
    Builder builder;
    builder.message.Subject = subject;
    const QByteArray value = builder.read().header("Subject");
    QCOMPARE(builder.problems, QStringList());
    QCOMPARE(decodedWords(value), QString::fromUtf8(subject.toUtf8()));
    QCOMPARE(!value.contains("=?"), isPlain);
}

void TestMime::extraHeaders_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("none") << u""_s << ""_qba;
    QTest::newRow("several") << u"Message-ID: <1@pc>\r\nX-Run: 7\r\n"_s
                             << "Message-ID: <1@pc>\r\nX-Run: 7\r\n"_qba;
    QTest::newRow("as they stand") << u"X-A:  two  blanks \r\n"_s << "X-A:  two  blanks \r\n"_qba;
    QTest::newRow("the last end is missing") << u"X-A: 1"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("continued") << u"X-A: 1\r\n\tand 2\r\n"_s << "X-A: 1\r\n\tand 2\r\n"_qba;
    QTest::newRow("continues nothing") << u" and 2\r\nX-A: 1\r\n"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("an empty line") << u"X-A: 1\r\n\r\nX-B: 2\r\n"_s << "X-A: 1\r\nX-B: 2\r\n"_qba;
    QTest::newRow("a blank line") << u"X-A: 1\r\n \r\nX-B: 2\r\n"_s << "X-A: 1\r\nX-B: 2\r\n"_qba;
    QTest::newRow("no field") << u"hello\r\nX-A: 1\r\n"_s << "X-A: 1\r\n"_qba;
    QTest::newRow("a blank in the name") << u"X A: 1\r\n  2\r\nX-B: 2\r\n"_s << "X-B: 2\r\n"_qba;
    QTest::newRow("bare line ends")
        << u"X-A: 1\nBcc: a@b\rX-C: 3\r\n"_s << "X-A: 1 Bcc: a@b X-C: 3\r\n"_qba;
    QTest::newRow("fields of our own")
        << u"From: x@y\r\nTO: x@y\r\nBcc: x@y\r\n z@y\r\nContent-Type: a/b\r\nX-A: 1\r\n"_s
        << "X-A: 1\r\n"_qba;
    QTest::newRow("accents") << u"X-A: è\r\n"_s << "X-A: =?UTF-8?B?w6g=?=\r\n"_qba;
}

void TestMime::extraHeaders()
{
    QFETCH(QString, lines);
    QFETCH(QByteArray, written);
    Builder builder;
    builder.message.ExtraHeaders = lines;
    builder.message.Mailer.clear();
    (void)builder.read();
    QCOMPARE(builder.problems, QStringList());
    const QByteArray bytes = builder.bytes();
    const qsizetype begin = bytes.indexOf("+0100\r\n") + 7;
    QCOMPARE(bytes.sliced(begin, bytes.indexOf("MIME-Version") - begin), written);
}

void TestMime::date()
{
    Builder builder;
    const auto date = [&] { return builder.read().header("Date"); };
    QCOMPARE(date(), "Sat, 21 Nov 2026 09:00:00 +0100"_qba);
    // The zone is that of the moment, looked at anew each second.
    builder.clock.offsetFromUtc = -(3 * 60 + 30) * 60;
    builder.clock.advanceMilliseconds(1000);
    builder.message.DateText = u"Sat, 21 Nov 2026 04:30:01"_s;
    QCOMPARE(date(), "Sat, 21 Nov 2026 04:30:01 -0330"_qba);
    builder.clock.offsetFromUtc = 0;
    builder.clock.advanceMilliseconds(1000);
    QCOMPARE(date(), "Sat, 21 Nov 2026 04:30:01 +0000"_qba);
    builder.message.DateText.clear();
    QCOMPARE(date(), "Sat, 21 Nov 2026 08:00:02 +0000"_qba);
}

void TestMime::noControlCharacterPasses()
{
    for (const QString &bad : {u"a\r\nBcc: evil@example.org"_s, u"a\nBcc: evil@example.org"_s,
                               u"a\rBcc: evil@example.org"_s, u"a\r\n\r\nbody"_s, u"a\0b"_s,
                               u"a\x7f\x1b\x01z"_s, u"a\u0085\u009fz"_s}) {
        Builder builder;
        builder.message.FromName = bad;
        builder.message.Subject = bad;
        builder.message.Mailer = bad;
        builder.message.DateText = bad;
        builder.attachments = {file(u"a.txt"_s, "x")};
        const ReadPart message = builder.read();
        QCOMPARE(builder.problems, QStringList());
        QCOMPARE(message.headers.size(), 8);
        QVERIFY(message.header("Bcc").isEmpty());
        QCOMPARE(message.outline(), u"multipart/mixed[text/plain text/plain]"_s);
    }
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
    Builder builder;
    builder.message.TextBody = text;
    ReadPart message = builder.read();
    QCOMPARE(builder.problems, QStringList());
    QCOMPARE(message.header("Content-Transfer-Encoding"), encoding);
    QString read = QString::fromUtf8(message.body);
    // A message of one part ends in a line end, whatever its text does.
    if (!text.isEmpty() && !text.endsWith(u"\r\n") && read.endsWith(u"\r\n"))
        read.chop(2);
    QCOMPARE(read, text);

    // Other line ends are the same text.
    builder.message.TextBody = QString(text).replace(u"\r\n"_s, u"\n"_s);
    QCOMPARE(builder.read().body, message.body);
    builder.message.TextBody = QString(text).replace(u"\r\n"_s, u"\r"_s);
    QCOMPARE(builder.read().body, message.body);

    // Inside a multipart it is the same to the last byte.
    builder.message.TextBody = text;
    builder.message.HtmlBody = text + u"<p>"_s;
    message = builder.read();
    QCOMPARE(builder.problems, QStringList());
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
    Builder builder;
    const QString reference = builder.builder.inlineFiles().add(file(u"p.png"_s, "\x89PNG\r\n"));
    QVERIFY(reference.startsWith(u"cid:"));
    if (html)
        builder.message.HtmlBody = u"<p>è</p>"_s;
    if (picture)
        builder.message.HtmlBody += u"<img src=\"%1\">"_s.arg(reference);
    builder.attachments = QStringList(attachments, file(u"a.pdf"_s, "%PDF-1.4"));
    for (int message = 0; message < 2; ++message) {
        const ReadPart read = builder.read();
        QCOMPARE(builder.problems, QStringList());
        QCOMPARE(read.outline(), outline);
        // Each boundary is another one.
        const QByteArray bytes = builder.bytes();
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
    Builder builder;
    const QByteArray content = QByteArray("%PDF-1.4\n\0\xff.\r\n", 14).repeated(40);
    builder.attachments = {file(name, content)};
    const ReadPart message = builder.read();
    QCOMPARE(builder.problems, QStringList());
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
    Builder builder;
    builder.attachments = {file(name, content)};
    const ReadPart message = builder.read();
    QCOMPARE(builder.problems, QStringList());
    QCOMPARE(message.parts.at(1).header("Content-Type").split(';').first(), type);
    QCOMPARE(message.parts.at(1).body, content);
}

void TestMime::attachmentsAreReadAgainWhenChanged()
{
    Builder builder;
    builder.attachments = {file(u"c.txt"_s, "first")};
    QCOMPARE(builder.read().parts.at(1).body, "first"_qba);
    file(u"c.txt"_s, "second");
    QCOMPARE(builder.read().parts.at(1).body, "second"_qba);
    // The same size, another time.
    QFile changed(file(u"c.txt"_s, "SECOND"));
    QVERIFY(changed.open(QIODevice::ReadWrite));
    QVERIFY(changed.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000),
                                QFileDevice::FileModificationTime));
    changed.close();
    QCOMPARE(builder.read().parts.at(1).body, "SECOND"_qba);
}

void TestMime::attachmentsThatCannotBeSent()
{
    Builder builder;
    const QString good = file(u"good.txt"_s, "x");
    const QString vanishing = file(u"vanishing.txt"_s, "x");
    builder.attachments = {good, vanishing};
    QCOMPARE(builder.read().parts.size(), 3);
    QVERIFY(QFile::remove(vanishing));
    for (const QString &bad : {vanishing, m_folder.path(), u""_s}) {
        const auto letter = builder.builder.build(builder.message, {good, bad});
        QVERIFY(!letter);
        QVERIFY(letter.error().startsWith(bad + u": "_s));
        QVERIFY(!letter.error().contains(u'\n'));
    }
    QVERIFY(builder.builder.build(builder.message, {good}));
}

void TestMime::attachmentsAreShared()
{
    Builder builder;
    builder.attachments = {file(u"big.bin"_s, QByteArray(100'000, '.'))};
    const auto largest = [&] {
        const auto letter = builder.builder.build(builder.message, builder.attachments);
        const auto &segments = letter->content.segments;
        return std::ranges::max_element(segments, {},
                                        [](const Segment &s) { return s.lines.size(); })
            ->lines;
    };
    const QByteArray first = largest();
    QVERIFY(first.size() > 100'000);
    builder.message.RecipientAddress = u"bert@example.net"_s;
    QCOMPARE(largest().constData(), first.constData());
}

void TestMime::inlineFiles()
{
    Builder builder;
    InlineFiles &files = builder.builder.inlineFiles();
    const QByteArray content = "\x89PNG\r\n\x1a\n picture"_qba;
    const QString path = file(u"città.png"_s, content);
    const QString first = files.add(path);
    const QString second = files.add(path);
    QVERIFY(first != second);
    QCOMPARE(files.add(m_folder.filePath(u"missing.png"_s)), QString());
    QCOMPARE(files.add(m_folder.path()), QString());
    QVERIFY(QFile::remove(path)); // it was read at once

    const auto ids = [&](const QString &html) {
        builder.message.HtmlBody = html;
        const ReadPart read = builder.read();
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

void TestMime::sender_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isUsable");

    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("no address") << u"sender"_s << false;
    QTest::newRow("injection") << u"a@b.example\r\nBcc: c@d"_s << false;
    QTest::newRow("domain with accents") << u"a@münchen.example"_s << true;
    QTest::newRow("plain") << u"a@b.example"_s << true;
}

void TestMime::sender()
{
    QFETCH(QString, address);
    QFETCH(bool, isUsable);
    Builder builder;
    QVERIFY(builder.builder.build(builder.message, {}));
    builder.message.FromAddress = address;
    const auto letter = builder.builder.build(builder.message, {});
    QCOMPARE(letter.has_value(), isUsable);
    if (!letter)
        QVERIFY(letter.error().startsWith(u"the sender's address cannot be used: "));
}
