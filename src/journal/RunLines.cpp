#include "journal/RunLines.h"

#include "base/Numbers.h"

#include <zlib.h>

#include <array>

namespace {

constexpr int ChecksumDigits = 8;

// Their order is that of the enumeration.
constexpr std::array OutcomeWords{"none", "in-flight", "sent", "refused", "not-taken", "in-doubt"};
QByteArray wordOf(Outcome outcome)
{
    return OutcomeWords[static_cast<std::size_t>(outcome)];
}

SmtpVerb verbOf(const QString &word)
{
    for (int verb = 0; verb <= static_cast<int>(SmtpVerb::Quit); ++verb) {
        if (nameOf(static_cast<SmtpVerb>(verb)) == word)
            return static_cast<SmtpVerb>(verb);
    }
    return SmtpVerb::None;
}

QByteArray checksumOf(QByteArrayView bytes)
{
    const auto sum = ::crc32_z(0, reinterpret_cast<const Bytef *>(bytes.data()),
                               static_cast<z_size_t>(bytes.size()));
    return QByteArray::number(static_cast<qulonglong>(sum), 16).rightJustified(ChecksumDigits, '0');
}

QByteArray escaped(const QString &text)
{
    QByteArray field = text.toUtf8();
    field.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
    return field;
}

QString unescaped(QByteArrayView field)
{
    QByteArray text;
    text.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] != '\\' || i + 1 == field.size()) {
            text += field[i];
            continue;
        }
        const char c = field[++i];
        text += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    }
    return QString::fromUtf8(text);
}

QByteArray line(const QByteArray &fields)
{
    return checksumOf(fields) + ' ' + fields + '\n';
}

QByteArray textOf(const std::vector<int> &positions)
{
    QByteArray text;
    for (auto first = positions.begin(); first != positions.end();) {
        auto last = first;
        while (std::next(last) != positions.end() && *std::next(last) == *last + 1)
            ++last;
        if (!text.isEmpty())
            text += ',';
        text += QByteArray::number(*first);
        if (last != first)
            text += '-' + QByteArray::number(*last);
        first = std::next(last);
    }
    return text;
}

QByteArray textOf(const ServerReply &reply)
{
    return nameOf(reply.verb).toUtf8() + '\t' + QByteArray::number(reply.code) + '\t' +
           escaped(reply.enhanced) + '\t' + escaped(reply.text);
}

} // namespace

QByteArray RunLines::run(qint64 started, const QString &projectPath)
{
    return line("run\t1\t" + QByteArray::number(started) + '\t' + escaped(projectPath));
}

QByteArray RunLines::project(const QByteArray &content)
{
    return line("project\t" + QByteArray::number(content.size()) + '\t' + checksumOf(content)) +
           content + '\n';
}

QByteArray RunLines::field(const QString &name, const QString &value)
{
    return line("field\t" + escaped(name) + '\t' + escaped(value));
}

QByteArray RunLines::attempt(int position, const Attempt &attempt)
{
    return line("try\t" + QByteArray::number(position) + '\t' + wordOf(attempt.outcome) + '\t' +
                QByteArray::number(attempt.time) + '\t' + QByteArray::number(attempt.tries) + '\t' +
                escaped(attempt.identifier) + '\t' + textOf(attempt.reply));
}

QByteArray RunLines::send(qint64 time, const QString &elapsed, const std::vector<int> &positions,
                          const QString &identifier)
{
    return line("send\t" + QByteArray::number(time) + '\t' + escaped(elapsed) + '\t' +
                textOf(positions) + '\t' + escaped(identifier));
}

QByteArray RunLines::done(qint64 time, const std::vector<int> &positions, Outcome outcome,
                          const ServerReply &reply)
{
    return line("done\t" + QByteArray::number(time) + '\t' + textOf(positions) + '\t' +
                wordOf(outcome) + '\t' + textOf(reply));
}

QByteArray RunLines::over(qint64 time)
{
    return line("over\t" + QByteArray::number(time));
}

std::optional<RunLines::Line> RunLines::Reader::next()
{
    while (!m_rest.isEmpty()) {
        const qsizetype end = m_rest.indexOf('\n');
        if (end < 0)
            return std::nullopt; // cut: it was never finished
        const QByteArrayView whole = m_rest.first(end);
        m_rest = m_rest.sliced(end + 1);
        const bool isWhole =
            whole.size() > ChecksumDigits && whole[ChecksumDigits] == ' ' &&
            checksumOf(whole.sliced(ChecksumDigits + 1)) == whole.first(ChecksumDigits);
        if (!isWhole) {
            ++m_brokenLines;
            continue;
        }
        Line line;
        for (const QByteArray &field : whole.sliced(ChecksumDigits + 1).toByteArray().split('\t'))
            line.fields.append(unescaped(field));
        line.kind = line.fields.takeFirst();
        if (line.kind != QLatin1String("project") || takeProject(line))
            return line;
        ++m_brokenLines;
    }
    return std::nullopt;
}

bool RunLines::Reader::takeProject(Line &line)
{
    const auto size = wholeNumber(line.fields.value(0), 0, m_rest.size() - 1);
    if (!size || m_rest[*size] != '\n')
        return false;
    line.project = m_rest.first(*size).toByteArray();
    if (QString::fromLatin1(checksumOf(line.project)) != line.fields.value(1))
        return false;
    m_rest = m_rest.sliced(*size + 1);
    return true;
}

std::vector<int> RunLines::positionsOf(const QString &field, int rows)
{
    std::vector<int> positions;
    for (const QString &range : field.split(u',')) {
        const auto first = wholeNumber(range.section(u'-', 0, 0), 1, rows);
        const auto last = wholeNumber(range.section(u'-', -1), 1, rows);
        const bool fits = first && last && *last - *first < rows - qint64(positions.size());
        if (!fits)
            return {};
        for (qint64 position = *first; position <= *last; ++position)
            positions.push_back(static_cast<int>(position));
    }
    return positions;
}

Outcome RunLines::outcomeOf(const QString &field)
{
    for (std::size_t place = 0; place < OutcomeWords.size(); ++place) {
        if (field == QLatin1String(OutcomeWords[place]))
            return static_cast<Outcome>(place);
    }
    return Outcome::None;
}

ServerReply RunLines::replyOf(const QStringList &fields, qsizetype first)
{
    ServerReply reply;
    reply.verb = verbOf(fields.value(first));
    reply.code = leadingNumber(fields.value(first + 1));
    reply.enhanced = fields.value(first + 2);
    reply.text = fields.value(first + 3);
    return reply;
}
