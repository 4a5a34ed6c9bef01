#include "TestRecipientsRules.h"

#include "RecipientsRig.h"
#include "base/modMain.h"

#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What an import leaves behind: the rows in the file's order, the boxes, the log.
struct Import
{
    QStringList rows;
    QStringList boxes;
    QStringList log;

    [[nodiscard]] std::string toText() const
    {
        return (u"rows\n"_s + rows.join(u'\n') + u"\nboxes\n"_s + boxes.join(u'\n') + u"\nlog\n"_s +
                log.join(u'\n'))
            .toStdString();
    }
};

QString rowText(const QString &number, const QString &name, const QString &address)
{
    return number + u'|' + name + u'|' + address + u"|Waiting|2|checked"_s;
}

QString boxText(const QString &title, const QString &text, const QString &detail)
{
    return title + u": "_s + text + u" ("_s + detail + u')';
}

/// One "@" with something on both sides; behind it a dot with two characters behind that.
bool isAddress(const QString &text)
{
    const QStringList parts = text.split(u'@');
    if (parts.size() != 2 || parts[0].isEmpty() || parts[1].isEmpty())
        return false;
    const QStringList labels = parts[1].split(u'.');
    if (labels.size() < 2 || labels.mid(1).join(u'.').size() < 2)
        return false;
    return std::none_of(text.begin(), text.end(), [](QChar c) { return u"%\\/*,"_s.contains(c); });
}

QStringList linesOf(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QStringList lines = text.split(u'\n');
    if (lines.last().isEmpty()) // what stands behind the last line's end, or an empty file
        lines.removeLast();
    return lines;
}

/// The rules once more. How bytes become a text is the code page's affair, and tested there.
Import imported(const QString &text, const QString &path)
{
    Import result;
    QString rejected;
    for (const QString &line : linesOf(text)) {
        const QStringList fields = line.split(u';');
        if (fields.size() < 2) {
            result.boxes = {
                boxText(u"Recipients"_s, u"Unable to load the specified list of recipients!"_s,
                        path + u": a line without \";\", or more than 32767 recipients"_s)};
            return result;
        }
        const QString address = fields[1].split(u'#').first();
        if (isAddress(address) && !address.contains(u' '))
            result.rows += rowText(QString::number(result.rows.size() + 1), fields[0], address);
        else
            rejected += fields[0] + u" - "_s + address + u"\r\n"_s;
    }
    if (!rejected.isEmpty()) {
        result.boxes = {
            boxText(u"Sorvanta"_s, u"These recipients couldn't be added:\r\n"_s + rejected, {})};
    }
    result.log = {u"Recipients file '"_s + path + u"' loaded"_s};
    return result;
}

Import importedBy(RecipientsRig &rig, const QString &path)
{
    rig.file.SetRecipientsFile(path);
    Import result;
    std::vector<Recipient> rows = rig.list.rows();
    std::sort(rows.begin(), rows.end(), [](const Recipient &a, const Recipient &b) {
        return a.number.toInt() < b.number.toInt();
    });
    for (const Recipient &row : rows) {
        result.rows += row.checked && row.state == u"Waiting" && row.imageIndex == 2
                           ? rowText(row.number, row.name, row.address)
                           : u"another row: "_s + row.name;
    }
    for (const Notice &notice : rig.prompts.takeNotices())
        result.boxes += boxText(notice.title, notice.text, notice.detail);
    result.log = rig.logged();
    return result;
}

using Pieces = std::vector<std::string>;

std::string joined(const Pieces &pieces)
{
    std::string all;
    for (const std::string &piece : pieces)
        all += piece;
    return all;
}

rc::Gen<std::string> upTo(int most, const rc::Gen<std::string> &piece)
{
    const auto pieces = rc::gen::mapcat(rc::gen::inRange(0, most + 1), [piece](int count) {
        return rc::gen::container<Pieces>(static_cast<std::size_t>(count), piece);
    });
    return rc::gen::map(pieces, joined);
}

rc::Gen<std::string> addressPiece()
{
    return rc::gen::element<std::string>("@", "@", ".", ".", "a", "b", "it", "c.d", "#", " ", ",",
                                         "%", "*", "/", "\\", "(comment)", "\"", "\xE8", "\t");
}

rc::Gen<std::string> anyPiece()
{
    const auto byte =
        rc::gen::map(rc::gen::arbitrary<char>(), [](char value) { return std::string(1, value); });
    return rc::gen::weightedOneOf<std::string>(
        {{4, addressPiece()},
         {4, rc::gen::element<std::string>(";", ";;", "Mario", "a@b.it", "\r", "\n", "\r\n", " ",
                                           "\xEF\xBB\xBF", "\xC3\xA8", "\xE2\x80\xA8")},
         {1, byte}});
}

/// A file most of whose lines are as they should be: behind one that is not nothing is read.
QByteArray anyFile()
{
    const auto name = rc::gen::weightedOneOf<std::string>(
        {{3,
          rc::gen::element<std::string>("", " ", "Mario", "Niccol\xC3\xB2", "Zo\xEB", "#1", "@")},
         {1, upTo(3, addressPiece())}});
    const auto address = rc::gen::weightedOneOf<std::string>(
        {{3, rc::gen::element<std::string>("a@b.it", "x.y@example.com", "a@b.it#x", "a@b.it # x",
                                           " a@b.it", "a@b.it ", "a@b.it (comment)", "a@b.i")},
         {2, upTo(6, addressPiece())}});
    const auto more = rc::gen::element<std::string>("", "", ";", ";b@c.it", ";;#", "; ");
    const auto goodLine =
        rc::gen::apply([](const std::string &first, const std::string &second,
                          const std::string &rest) { return first + ';' + second + rest; },
                       name, address, more);
    const auto line =
        rc::gen::weightedOneOf<std::string>({{12, goodLine}, {1, upTo(8, anyPiece())}});
    const auto end =
        rc::gen::weightedElement<std::string>({{8, "\r\n"}, {4, "\n"}, {4, "\r"}, {1, "\n\r"}});
    std::string file =
        *rc::gen::weightedElement<std::string>({{4, ""}, {1, "\xEF\xBB\xBF"}, {1, "\xFF\xFE"}});
    const int lines = *rc::gen::inRange(0, 12);
    for (int i = 0; i < lines; ++i)
        file += *line + *end;
    return QByteArray::fromStdString(file + *rc::gen::oneOf(rc::gen::just(std::string()), line));
}

} // namespace

void TestRecipientsRules::anyFileIsImportedByTheRules()
{
    QVERIFY(rc::check("import(file) is what the rules say", [] {
        const QByteArray content = anyFile();
        RecipientsRig rig;
        const QString path = rig.folder.filePath(u"list.txt"_s);
        writeFile(path, content);
        const Import wanted = imported(rig.codePage.decode(content), path);
        RC_CLASSIFY(wanted.log.isEmpty(), "broken off");
        RC_CLASSIFY(!wanted.rows.isEmpty(), "with rows");
        RC_LOG() << content.toStdString();
        RC_ASSERT(importedBy(rig, path).toText() == wanted.toText());
    }));
}

void TestRecipientsRules::anyAddressIsJudgedByTheRules()
{
    QVERIFY(rc::check("IsValidEmail(text) is what the rules say", [] {
        const auto part = upTo(3, addressPiece());
        const QString text =
            QString::fromLatin1(*part + *rc::gen::element<std::string>("@", "a@b.") + *part);
        RC_CLASSIFY(isAddress(text), "an address");
        RC_LOG() << text.toStdString();
        RC_ASSERT(IsValidEmail(text) == isAddress(text));
    }));
}
