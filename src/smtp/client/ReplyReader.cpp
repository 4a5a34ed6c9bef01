#include "smtp/client/ReplyReader.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The code at the beginning of a reply line, 0 when there is none.
int codeOf(QByteArrayView line)
{
    const bool wellFormed = line.size() >= 3 && line[0] >= '2' && line[0] <= '5' &&
                            isDigit(line[1]) && isDigit(line[2]) &&
                            (line.size() == 3 || line[3] == ' ' || line[3] == '-');
    return wellFormed ? (line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0') : 0;
}

/// The length of the enhanced status code that the text begins with: class, subject and detail of
/// RFC 3463, the class being that of the reply code. 0 when there is none.
qsizetype enhancedLength(QByteArrayView text, int code)
{
    if (text.size() < 5 || text[0] != static_cast<char>('0' + code / 100) || text[1] != '.')
        return 0;
    qsizetype at = 2;
    const auto digits = [&] {
        const qsizetype begin = at;
        while (at < text.size() && at - begin < 3 && isDigit(text[at]))
            ++at;
        return at > begin;
    };
    if (!digits() || at == text.size() || text[at] != '.')
        return 0;
    ++at;
    return digits() && (at == text.size() || text[at] == ' ') ? at : 0;
}

qsizetype firstLineLength(const QByteArray &lines)
{
    const qsizetype end = lines.indexOf('\n');
    return end < 0 ? lines.size() : end;
}

} // namespace

QString printable(QByteArrayView bytes)
{
    QString text = bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
    std::ranges::replace_if(
        text, [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return text;
}

ServerReply WireReply::toServerReply(SmtpVerb verb) const
{
    ServerReply reply;
    reply.verb = verb;
    reply.code = code;
    const qsizetype length = enhancedLength(lines.first(firstLineLength(lines)), code);
    const QByteArray enhanced = lines.left(length);
    reply.enhanced = QString::fromLatin1(enhanced);
    for (qsizetype begin = 0; begin <= lines.size();) {
        qsizetype end = lines.indexOf('\n', begin);
        if (end < 0)
            end = lines.size();
        QByteArrayView line = QByteArrayView(lines).sliced(begin, end - begin);
        if (length > 0 && line.startsWith(enhanced)) // each line carries it again
            line = line.sliced(length);
        line = line.trimmed();
        if (!line.isEmpty()) {
            if (!reply.text.isEmpty())
                reply.text += u' ';
            reply.text += printable(line);
        }
        begin = end + 1;
    }
    return reply;
}

tl::expected<std::optional<WireReply>, QString> ReplyReader::next()
{
    qsizetype read = 0;
    std::optional<WireReply> whole;
    while (!whole) {
        const qsizetype end = m_input.indexOf('\n', read);
        const qsizetype length = (end < 0 ? m_input.size() : end) - read;
        if (length > m_limits.replyLineLength)
            return tl::unexpected(u"the server sent an endless line"_s);
        if (end < 0)
            break;
        QByteArrayView line = QByteArrayView(m_input).sliced(read, length);
        if (line.endsWith('\r'))
            line.chop(1);
        const int code = codeOf(line);
        if (code == 0 || (m_lineCount > 0 && code != m_reply.code))
            return tl::unexpected(u"the server's words are no SMTP reply: \"%1\""_s.arg(
                printable(line.first(std::min<qsizetype>(line.size(), 80)))));
        if (++m_lineCount > m_limits.replyLines)
            return tl::unexpected(u"the server sent an endless reply"_s);
        read = end + 1;
        m_reply.code = code;
        if (m_lineCount > 1)
            m_reply.lines += '\n';
        if (line.size() > 4)
            m_reply.lines += line.sliced(4);
        if (line.size() == 3 || line[3] == ' ') {
            whole = std::exchange(m_reply, {});
            m_lineCount = 0;
        }
    }
    m_input.remove(0, read);
    return whole;
}

void ReplyReader::clear()
{
    m_input.clear();
    m_reply = {};
    m_lineCount = 0;
}
