#include "TestProjectRules.h"

#include "ProjectModel.h"
#include "base/CodePage.h"

#include <QTest>

#include <rapidcheck.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using Pieces = std::vector<std::string>;

/// In UTF-8. Those with which the rules of reading and writing deal.
rc::Gen<std::string> sharpPiece()
{
    return rc::gen::element<std::string>(",", ",", "\"", "\"", "\"\"", "\r", "\n", "\r\n", " ", "",
                                         "v2.0");
}

rc::Gen<std::string> harmlessPiece()
{
    return rc::gen::element<std::string>(
        "Mario", "a@b.it", "C:\\news\\may.txt", "/home/news", "0", "1", "-1", "+7", "70000",
        "-99999999999", "0000000000000000012", "12x", "pausa", "stop", "check", "CHECK", "nocheck",
        "True", "False", "#", ";", "'", "\t", "\x01", "\x7f", "\xC2\xA0", "\xC3\xA8",
        "\xE2\x82\xAC", "\xC3\x83\xC2\xA9", "\xC5\x81", "\xF0\x9F\x98\x80", "\xE2\x80\xA8",
        "\xEF\xBB\xBF");
}

rc::Gen<std::string> anyPiece()
{
    return rc::gen::oneOf(sharpPiece(), harmlessPiece());
}

QString joined(const Pieces &pieces)
{
    QByteArray text;
    for (const std::string &piece : pieces)
        text += QByteArray::fromStdString(piece);
    return QString::fromUtf8(text);
}

/// Up to so many pieces together.
rc::Gen<QString> textOf(const rc::Gen<std::string> &piece, int most)
{
    const auto pieces = rc::gen::mapcat(rc::gen::inRange(0, most + 1), [piece](int count) {
        return rc::gen::container<Pieces>(static_cast<std::size_t>(count), piece);
    });
    return rc::gen::map(pieces, joined);
}

/// Nothing, or a text that does not begin with a blank; none of the characters that end a field.
rc::Gen<QString> harmlessText()
{
    return rc::gen::map(textOf(rc::gen::oneOf(harmlessPiece(), rc::gen::just<std::string>(" ")), 4),
                        [](QString text) {
                            while (text.startsWith(u' '))
                                text.remove(0, 1);
                            return text;
                        });
}

rc::Gen<QString> anyFieldText()
{
    return rc::gen::oneOf(harmlessText(), textOf(anyPiece(), 4));
}

rc::Gen<QString> anyLineText()
{
    return textOf(rc::gen::oneOf(harmlessPiece(), rc::gen::element<std::string>(",", "\"", " ")),
                  4);
}

/// The number of a list's elements: small, so that a failure is read easily.
template <typename T>
std::vector<T> fewOf(const rc::Gen<T> &one)
{
    const int count = *rc::gen::inRange(0, 4);
    return *rc::gen::container<std::vector<T>>(static_cast<std::size_t>(count), one);
}

template <typename Number>
Number anyNumber()
{
    using Limits = std::numeric_limits<Number>;
    return *rc::gen::oneOf(rc::gen::element<Number>(0, 1, 2, -1, Limits::min(), Limits::max()),
                           rc::gen::arbitrary<Number>());
}

/// A project whose fields are such texts, and the names and addresses of its rows such lines.
ProjectData projectOf(const rc::Gen<QString> &field, const rc::Gen<QString> &line,
                      const rc::Gen<QString> &attachment)
{
    ProjectData project;
    project.paused = *rc::gen::arbitrary<bool>();
    project.nextRecipientIndex = anyNumber<qint32>();
    for (QString *text :
         {&project.elapsed, &project.server, &project.senderName, &project.senderAddress,
          &project.controlAddress, &project.textPath, &project.htmlPath, &project.subject,
          &project.recipientsPath, &project.messagesPerPacket, &project.delayMinutes})
        *text = *field;
    project.returnReceipt = *rc::gen::arbitrary<bool>();
    project.multiSend = *rc::gen::arbitrary<bool>();
    for (const QString &path : fewOf(attachment))
        project.attachments += path;
    const int rows = *rc::gen::inRange(0, 4);
    for (int i = 0; i < rows; ++i) {
        Recipient row;
        row.number = *field;
        row.name = *line;
        row.address = *line;
        row.state = *field;
        row.imageIndex = anyNumber<qint16>();
        row.checked = *rc::gen::arbitrary<bool>();
        project.recipients.push_back(row);
    }
    return project;
}

ProjectData anyProject()
{
    return projectOf(anyFieldText(), textOf(anyPiece(), 4), textOf(anyPiece(), 4));
}

/// As many fields as a project with some recipients has, or fewer; most of them fit for one.
QString anyText()
{
    const auto field = rc::gen::weightedOneOf<QString>(
        {{20, rc::gen::just(QString())}, {60, harmlessText()}, {3, textOf(anyPiece(), 3)}});
    const auto end =
        rc::gen::map(rc::gen::weightedElement<std::string>(
                         {{40, "\r\n"}, {20, "\n"}, {20, "\r"}, {10, ","}, {1, " "}, {1, "\n\r"}}),
                     QString::fromStdString);
    QString text = *rc::gen::map(
        rc::gen::weightedElement<std::string>({{20, "v2.0\r\n"}, {1, " \"v2.0\"x,"}, {1, ""}}),
        QString::fromStdString);
    constexpr int HeaderFields = 20;
    constexpr int MostFields = 50;
    const int fields = *rc::gen::weightedOneOf<int>(
        {{1, rc::gen::inRange(0, HeaderFields)}, {4, rc::gen::inRange(HeaderFields, MostFields)}});
    for (int i = 0; i < fields; ++i)
        text += *field + *end;
    return text + *harmlessText();
}

} // namespace

void TestProjectRules::anyProjectIsWrittenByTheRules()
{
    QVERIFY(rc::check("encode(project) is what the rules say", [] {
        const ProjectData project = anyProject();
        RC_ASSERT(encodeProject(project).toStdString() ==
                  ProjectModel::written(project).toStdString());
    }));
}

void TestProjectRules::anyTextIsReadByTheRules()
{
    QVERIFY(rc::check("decode(text) is what the rules say", [] {
        const QString text = anyText();
        const auto read = decodeProject(text);
        RC_CLASSIFY(read.has_value() && !read->recipients.empty(), "with recipients");
        RC_CLASSIFY(read.has_value() && read->cut, "cut");
        RC_LOG() << text.toStdString();
        RC_ASSERT(ProjectModel::described(read) ==
                  ProjectModel::described(ProjectModel::read(text)));
    }));
}

void TestProjectRules::whatWasWrittenIsReadByTheRules()
{
    QVERIFY(rc::check("decode(encode(project)) is what the rules say", [] {
        const ProjectData project = anyProject();
        const auto read = decodeProject(encodeProject(project));
        RC_CLASSIFY(read.has_value() && !read->recipients.empty(), "with recipients");
        RC_ASSERT(ProjectModel::described(read) ==
                  ProjectModel::described(ProjectModel::read(ProjectModel::written(project))));
    }));
}

void TestProjectRules::textsWithNothingThatTheRulesKnowComeBackAsTheyWere()
{
    QVERIFY(rc::check("decode(encode(project)) == project", [] {
        const auto path = rc::gen::map(
            harmlessText(), [](const QString &text) { return QStringLiteral("/a/") + text; });
        const ProjectData project = projectOf(harmlessText(), anyLineText(), path);
        RC_ASSERT(ProjectModel::described(decodeProject(encodeProject(project))) ==
                  ProjectModel::described(project));
    }));
}

void TestProjectRules::anyFileIsTheTextThatWasWritten()
{
    QVERIFY(rc::check("decode(encode(text)) == text, in bytes", [] {
        const CodePage codePage("windows-1252");
        const QString text = encodeProject(anyProject());
        RC_ASSERT(codePage.decode(codePage.encode(text)).toStdString() == text.toStdString());
    }));
}
