#include "smtp/TestStructure.h"

#include "smtp/MessageUnderTest.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList NoKind;
const QString Accents = u"Perché no? È così: la città, più in là."_s;

bool has(const QByteArray &bytes, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    return expression.match(QString::fromLatin1(bytes)).hasMatch();
}

qsizetype fieldsNamed(const ReadPart &part, const QByteArray &name)
{
    return std::ranges::count_if(part.headers, [&](const auto &field) {
        return field.first.compare(name, Qt::CaseInsensitive) == 0;
    });
}

bool isMultipart(const ReadPart &part)
{
    return part.header("Content-Type").startsWith("multipart/");
}

bool isText(const ReadPart &part)
{
    return part.header("Content-Type").startsWith("text/") &&
           !part.header("Content-Disposition").startsWith("attachment");
}

bool isAscii(const QByteArray &bytes)
{
    return std::ranges::all_of(bytes, [](char c) { return c >= 0; });
}

/// The bodies in quoted-printable or base64 as they stand in the message, from one header to the
/// next boundary.
QList<QByteArray> bodiesIn(const QByteArray &encoding, const QByteArray &bytes)
{
    const QByteArray headerEnd = "Content-Transfer-Encoding: " + encoding + "\r\n\r\n";
    QList<QByteArray> bodies;
    for (qsizetype at = bytes.indexOf(headerEnd); at >= 0; at = bytes.indexOf(headerEnd, at)) {
        at += headerEnd.size();
        const qsizetype end = bytes.indexOf("\r\n--=_", at - 2);
        bodies += bytes.sliced(at, std::max(at, end < 0 ? bytes.size() : end) - at);
    }
    return bodies;
}

bool anyBodyHas(const QByteArray &encoding, const QByteArray &bytes, const QString &pattern)
{
    return std::ranges::any_of(bodiesIn(encoding, bytes),
                               [&](const QByteArray &body) { return has(body, pattern); });
}

const ReadPart *textOf(const ReadPart &part, const QByteArray &type)
{
    if (isText(part) && part.header("Content-Type").startsWith(type))
        return &part;
    for (const ReadPart &inner : part.parts) {
        if (const ReadPart *found = textOf(inner, type))
            return found;
    }
    return nullptr;
}

} // namespace

QString TestStructure::file(const QString &name, const QByteArray &content)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a file for the test");
    return path;
}

void TestStructure::add(const QString &name, MessageUnderTest &mail)
{
    const QByteArray bytes = mail.bytes();
    const QByteArray header = bytes.first(bytes.indexOf("\r\n\r\n") + 2);
    m_kinds += {name, bytes, header, mail.read()};
    QCOMPARE(mail.problems, QStringList());
}

void TestStructure::initTestCase()
{
    const QStringList files = {file(u"programme.pdf"_s, "%PDF-1.4\n" + QByteArray(5000, '\xe8')),
                               file(u"perché.txt"_s, Accents.toUtf8())};
    for (const bool accents : {false, true}) {
        for (const bool html : {false, true}) {
            for (const bool picture : {false, true}) {
                for (const bool attached : {false, true}) {
                    if (picture && !html)
                        continue;
                    MessageUnderTest mail;
                    const QString words = accents ? Accents : u"Hello, we meet at nine."_s;
                    if (accents)
                        mail.message.FromName = mail.message.Subject = Accents;
                    mail.message.TextBody = words + u"\r\n=3D .  \r\n"_s;
                    if (html)
                        mail.message.HtmlBody =
                            u"<html><body><p>%1</p></body></html>\r\n"_s.arg(words);
                    if (picture) {
                        mail.message.HtmlBody += u"<img src=\"%1\">"_s.arg(
                            mail.builder.inlineFiles().add(file(u"p.png"_s, "\x89PNG\r\n\x1a\n")));
                    }
                    if (attached)
                        mail.attachments = files;
                    add(u"%1%2%3%4"_s.arg(accents ? u"accents"_s : u"ASCII"_s,
                                          html ? u", HTML"_s : QString(),
                                          picture ? u", picture"_s : QString(),
                                          attached ? u", attachments"_s : QString()),
                        mail);
                }
            }
        }
    }
    MessageUnderTest receipt;
    receipt.message.RequestReceipt = true;
    receipt.message.ReceiptAddress = receipt.message.FromAddress;
    add(u"receipt"_s, receipt);
    MessageUnderTest group;
    group.message.RecipientList = true;
    group.message.RecipientAddress = u"anna@example.net,bert@example.net"_s;
    add(u"group"_s, group);
    MessageUnderTest longLines;
    longLines.message.Subject = u"parola "_s.repeated(200);
    longLines.message.FromName = u"x"_s.repeated(1500);
    longLines.message.TextBody = u"y"_s.repeated(3000);
    longLines.message.HtmlBody = u"z "_s.repeated(3000);
    add(u"long lines"_s, longLines);
}

QStringList TestStructure::kindsThat(const std::function<bool(const Kind &)> &breakTheRule) const
{
    QStringList names;
    for (const Kind &kind : m_kinds) {
        if (breakTheRule(kind))
            names += kind.name;
    }
    return names;
}

QStringList
TestStructure::partsThat(const std::function<bool(const ReadPart &)> &breakTheRule) const
{
    const std::function<bool(const ReadPart &)> anyBreaks = [&](const ReadPart &part) {
        return breakTheRule(part) || std::ranges::any_of(part.parts, anyBreaks);
    };
    return kindsThat([&](const Kind &kind) { return anyBreaks(kind.message); });
}

void TestStructure::fieldsThatAMessageNeedsStandOnce()
{
    for (const QByteArray &name :
         {"From"_qba, "To"_qba, "Subject"_qba, "Date"_qba, "Message-ID"_qba, "MIME-Version"_qba})
        QCOMPARE(kindsThat([&](const Kind &kind) { return fieldsNamed(kind.message, name) != 1; }),
                 NoKind);
}

void TestStructure::contentFieldsStandOnceInEachPart()
{
    QCOMPARE(partsThat([](const ReadPart &part) {
                 return fieldsNamed(part, "Content-Type") != 1 ||
                        fieldsNamed(part, "Content-Transfer-Encoding") != !isMultipart(part);
             }),
             NoKind);
}

void TestStructure::headerLinesAreWellFormed()
{
    // A name without blanks, a colon, a blank and something; or the rest of the line before.
    const QString line = u"([!-9;-~]+: [ -~]*[!-~]|[ \\t]+[!-~][ -~]*)\\r\\n"_s;
    QCOMPARE(
        kindsThat([&](const Kind &kind) { return !has(kind.header, u"\\A(%1)+\\z"_s.arg(line)); }),
        NoKind);
}

void TestStructure::linesAreNoLongerThan998Bytes()
{
    QCOMPARE(kindsThat([](const Kind &kind) { return has(kind.bytes, u"[^\\n]{1000}"_s); }),
             NoKind);
}

void TestStructure::noCrOrLfStandsAlone()
{
    QCOMPARE(
        kindsThat([](const Kind &kind) { return has(kind.bytes, u"(?<!\\r)\\n|\\r(?!\\n)"_s); }),
        NoKind);
}

void TestStructure::noByteIsBeyondAscii()
{
    QCOMPARE(kindsThat([](const Kind &kind) { return !isAscii(kind.bytes); }), NoKind);
}

void TestStructure::dateIsEnglishAndHasAZone()
{
    const QString date = u"^(Mon|Tue|Wed|Thu|Fri|Sat|Sun), \\d{2} (Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|"
                         "Sep|Oct|Nov|Dec) \\d{4} \\d{2}:\\d{2}:\\d{2} [+-]\\d{4}$"_s;
    QCOMPARE(kindsThat([&](const Kind &kind) { return !has(kind.message.header("Date"), date); }),
             NoKind);
}

void TestStructure::messageIdHasTwoSidesInBrackets()
{
    QCOMPARE(kindsThat([](const Kind &kind) {
                 return !has(kind.message.header("Message-ID"), u"^<[^<>@\\s]+@[^<>@\\s]+>$"_s);
             }),
             NoKind);
}

void TestStructure::mimeVersionIsSpelledAsTheStandardSpellsIt()
{
    QCOMPARE(kindsThat([](const Kind &kind) {
                 return !kind.header.contains("\r\nMIME-Version: 1.0\r\n");
             }),
             NoKind);
}

void TestStructure::asciiIsNotEncodedInHeaders()
{
    const QString word = u"=\\?[^?]+\\?[BQbq]\\?[^?]*\\?="_s;
    QCOMPARE(kindsThat([&](const Kind &kind) {
                 return kind.name.startsWith("ASCII"_L1) && has(kind.header, word);
             }),
             NoKind);
    // The rule is held against something: accents are encoded.
    QVERIFY(std::ranges::any_of(m_kinds, [&](const Kind &kind) { return has(kind.header, word); }));
}

void TestStructure::asciiIsNotEncodedInTexts()
{
    const auto hasLongLine = [](const QByteArray &text) { return has(text, u"[^\\n]{999}"_s); };
    QCOMPARE(partsThat([&](const ReadPart &part) {
                 const bool isPlain = isAscii(part.body) && !hasLongLine(part.body);
                 return isText(part) && isPlain &&
                        part.header("Content-Transfer-Encoding") != "7bit";
             }),
             NoKind);
}

void TestStructure::quotedPrintableIsCorrect()
{
    const auto breaks = [this](const QString &pattern) {
        return kindsThat(
            [&](const Kind &kind) { return anyBodyHas("quoted-printable", kind.bytes, pattern); });
    };
    QCOMPARE(breaks(u"=(?![0-9A-F]{2}|\\r\\n)"_s), NoKind); // "=" that encodes nothing
    QCOMPARE(breaks(u"[ \\t](\\r\\n|\\z)"_s), NoKind);
    QCOMPARE(breaks(u"[^\\r\\n]{77}"_s), NoKind);
    // The rules are held against something: six kinds have accents, and a "=" in their text.
    QCOMPARE(breaks(u"=3D"_s).size(), 6);
}

void TestStructure::base64LinesAreShort()
{
    const auto breaks = [this](const QString &pattern) {
        return kindsThat(
            [&](const Kind &kind) { return anyBodyHas("base64", kind.bytes, pattern); });
    };
    QCOMPARE(breaks(u"[^\\r\\n]{77}"_s), NoKind);
    QCOMPARE(breaks(u"[^A-Za-z0-9+/=\\r\\n]"_s), NoKind);
    QCOMPARE(breaks(u"[A-Za-z0-9+/]{72}"_s).size(), 6); // the kinds with attachments
}

void TestStructure::attachmentsAreMarkedAsSuch()
{
    QCOMPARE(partsThat([](const ReadPart &part) {
                 return !isMultipart(part) && !isText(part) &&
                        !has(part.header("Content-Disposition"),
                             u"^(attachment|inline); filename"_s);
             }),
             NoKind);
}

void TestStructure::textsDeclareTheirCharset()
{
    QCOMPARE(partsThat([](const ReadPart &part) {
                 return isText(part) &&
                        !part.header("Content-Type").toLower().endsWith("; charset=utf-8");
             }),
             NoKind);
}

void TestStructure::boundariesAreNotMereDigits()
{
    QCOMPARE(partsThat([](const ReadPart &part) {
                 const QString boundary = parameter(part.header("Content-Type"), "boundary");
                 return isMultipart(part) && !has(boundary.toLatin1(), u"[^-0-9]"_s);
             }),
             NoKind);
}

void TestStructure::receiptGoesToTheSender()
{
    const auto asksForReceipt = [](const Kind &kind) {
        return fieldsNamed(kind.message, "Disposition-Notification-To") > 0;
    };
    QCOMPARE(kindsThat(asksForReceipt), QStringList(u"receipt"_s));
    QCOMPARE(kindsThat([&](const Kind &kind) {
                 const QByteArray to = kind.message.header("Disposition-Notification-To");
                 return asksForReceipt(kind) &&
                        !kind.message.header("From").contains('<' + to + '>');
             }),
             NoKind);
}

void TestStructure::groupIsNotDisclosed()
{
    const auto isGroup = [](const Kind &kind) {
        return kind.message.header("To") == "undisclosed-recipients:;";
    };
    QCOMPARE(kindsThat(isGroup), QStringList(u"group"_s));
    QCOMPARE(kindsThat([&](const Kind &kind) {
                 return isGroup(kind) && has(kind.bytes, u"(anna|bert)@"_s);
             }),
             NoKind);
}

void TestStructure::textAndHtmlSayTheSame()
{
    QCOMPARE(kindsThat([](const Kind &kind) {
                 const ReadPart *html = textOf(kind.message, "text/html");
                 if (!html || kind.name == u"long lines"_s)
                     return false;
                 const ReadPart *text = textOf(kind.message, "text/plain");
                 const QByteArray words = text ? text->body.split('\r').first() : QByteArray();
                 return words.isEmpty() || !html->body.contains("<p>" + words + "</p>");
             }),
             NoKind);
}
