#include "ProjectModel.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int HeaderFields = 15;
constexpr int ReservedFields = 4;

class Reader
{
public:
    explicit Reader(QString text) : m_text(std::move(text)) {}

    [[nodiscard]] bool atEnd() const { return m_at == m_text.size(); }
    /// Whether nothing stood behind what was read last, not even a comma or a line end.
    [[nodiscard]] bool lastWasCut() const { return m_wasCut; }

    std::optional<QString> field()
    {
        if (atEnd())
            return std::nullopt;
        while (!atEnd() && m_text[m_at] == u' ')
            ++m_at;
        if (atEnd() || m_text[m_at] != u'"')
            return upTo(u",\r\n");
        QString quoted;
        for (++m_at; !atEnd() && m_text[m_at] != u'"'; ++m_at)
            quoted += m_text[m_at];
        if (atEnd())
            return std::nullopt;
        upTo(u",\r\n");
        return quoted;
    }

    std::optional<QString> line()
    {
        if (atEnd())
            return std::nullopt;
        return upTo(u"\r\n");
    }

private:
    QString upTo(QStringView ends)
    {
        QString passed;
        while (!atEnd() && !ends.contains(m_text[m_at]))
            passed += m_text[m_at++];
        m_wasCut = atEnd();
        if (m_wasCut)
            return passed;
        const bool isPair = m_text[m_at] == u'\r' && m_text.mid(m_at + 1, 1) == u"\n";
        m_at += isPair ? 2 : 1;
        return passed;
    }

    QString m_text;
    qsizetype m_at = 0;
    bool m_wasCut = false;
};

/// The digits at the beginning, held within a type.
template <typename Number>
Number numberIn(const QString &text)
{
    static const QRegularExpression number(u"^[ \\t]*([+-]?)0*([0-9]*)"_s);
    const auto match = number.match(text);
    const bool isNegative = match.captured(1) == u"-";
    using Limits = std::numeric_limits<Number>;
    constexpr int ManyDigits = 12;
    if (match.captured(2).size() > ManyDigits)
        return isNegative ? Limits::min() : Limits::max();
    const qint64 value = match.captured(2).toLongLong() * (isNegative ? -1 : 1);
    return static_cast<Number>(std::clamp<qint64>(value, Limits::min(), Limits::max()));
}

QString numberText(int number)
{
    return QString::asprintf(number < 0 ? "%d " : " %d ", number);
}

QString onOneLine(const QString &text)
{
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isSecondOfPair = i > 0 && text[i - 1] == u'\r' && text[i] == u'\n';
        if (isSecondOfPair)
            continue;
        line += text[i] == u'\r' || text[i] == u'\n' ? QChar(u' ') : text[i];
    }
    return line;
}

/// Nothing when a part is missing, or the last one was not finished.
std::optional<Recipient> recipientFrom(Reader &reader)
{
    const auto number = reader.field();
    const auto name = reader.line();
    const auto address = reader.line();
    const auto state = reader.field();
    const auto image = reader.field();
    const auto check = reader.field();
    if (!number || !name || !address || !state || !image || !check)
        return std::nullopt;
    if (reader.lastWasCut() && *check != u"check" && *check != u"nocheck")
        return std::nullopt;
    Recipient row;
    row.number = *number;
    row.name = *name;
    row.address = *address;
    row.state = *state;
    row.imageIndex = numberIn<qint16>(*image);
    row.checked = check->toCaseFolded() == u"check";
    return row;
}

void describe(std::string &all, const char *name, const QString &value)
{
    const std::string bytes = value.toStdString();
    all += std::string(name) + " (" + std::to_string(bytes.size()) + "): " + bytes + '\n';
}

void describe(std::string &all, const char *name, int value)
{
    all += std::string(name) + ": " + std::to_string(value) + '\n';
}

} // namespace

QString ProjectModel::written(const ProjectData &project)
{
    QStringList lines{u"v2.0"_s,
                      project.paused ? u"pausa"_s : u"stop"_s,
                      numberText(project.nextRecipientIndex),
                      project.elapsed,
                      project.server,
                      project.senderName,
                      project.senderAddress,
                      project.controlAddress,
                      numberText(project.returnReceipt ? 1 : 0),
                      project.textPath,
                      project.htmlPath,
                      project.subject,
                      project.recipientsPath,
                      project.messagesPerPacket,
                      project.delayMinutes,
                      numberText(project.multiSend ? 1 : 0)};
    for (int i = 0; i < ReservedFields; ++i)
        lines += QString();
    lines += project.attachments;
    lines += QString();
    for (const Recipient &row : project.recipients) {
        lines += {row.number,
                  row.name,
                  row.address,
                  row.state,
                  numberText(row.imageIndex),
                  row.checked ? u"check"_s : u"nocheck"_s};
    }
    QString text;
    for (const QString &line : lines)
        text += onOneLine(line) + u"\r\n"_s;
    return text;
}

tl::expected<ProjectData, ProjectFault> ProjectModel::read(const QString &text)
{
    Reader reader(text);
    if (reader.field() != u"v2.0"_s)
        return tl::unexpected(ProjectFault::WrongTag);
    QStringList header;
    while (header.size() < HeaderFields + ReservedFields) {
        const auto field = reader.field();
        if (!field)
            return tl::unexpected(ProjectFault::Cut);
        header += *field;
    }
    ProjectData project;
    auto next = header.cbegin();
    project.paused = *next++ == u"pausa";
    project.nextRecipientIndex = numberIn<qint32>(*next++);
    project.elapsed = *next++;
    project.server = *next++;
    project.senderName = *next++;
    project.senderAddress = *next++;
    project.controlAddress = *next++;
    project.returnReceipt = numberIn<qint32>(*next++) != 0;
    project.textPath = *next++;
    project.htmlPath = *next++;
    project.subject = *next++;
    project.recipientsPath = *next++;
    project.messagesPerPacket = *next++;
    project.delayMinutes = *next++;
    project.multiSend = next->isEmpty() || numberIn<qint32>(*next) != 0;
    for (auto path = reader.field(); path != QString(); path = reader.field()) {
        if (!path)
            return tl::unexpected(ProjectFault::Cut);
        project.attachments += *path;
    }
    while (!reader.atEnd() && !project.cut) {
        if (const auto row = recipientFrom(reader))
            project.recipients.push_back(*row);
        else
            project.cut = true;
    }
    project.paused = project.paused && !project.cut;
    return project;
}

std::string ProjectModel::described(const tl::expected<ProjectData, ProjectFault> &read)
{
    if (!read)
        return read.error() == ProjectFault::WrongTag ? "another tag" : "cut in the header";
    std::string all;
    describe(all, "paused", read->paused ? 1 : 0);
    describe(all, "next recipient", read->nextRecipientIndex);
    describe(all, "elapsed", read->elapsed);
    describe(all, "server", read->server);
    describe(all, "sender's name", read->senderName);
    describe(all, "sender's address", read->senderAddress);
    describe(all, "control address", read->controlAddress);
    describe(all, "receipt", read->returnReceipt ? 1 : 0);
    describe(all, "text", read->textPath);
    describe(all, "html", read->htmlPath);
    describe(all, "subject", read->subject);
    describe(all, "recipients", read->recipientsPath);
    describe(all, "packet", read->messagesPerPacket);
    describe(all, "delay", read->delayMinutes);
    describe(all, "several at once", read->multiSend ? 1 : 0);
    for (const QString &path : read->attachments)
        describe(all, "attachment", path);
    for (const Recipient &row : read->recipients) {
        describe(all, "number", row.number);
        describe(all, "name", row.name);
        describe(all, "address", row.address);
        describe(all, "state", row.state);
        describe(all, "picture", row.imageIndex);
        describe(all, "checked", row.checked ? 1 : 0);
    }
    describe(all, "cut", read->cut ? 1 : 0);
    return all;
}
