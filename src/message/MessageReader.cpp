#include "message/MessageReader.h"

#include "base/Lines.h"

#include <QStringDecoder>

#include <algorithm>
#include <cctype>
#include <optional>

namespace {

constexpr QByteArrayView Key = "charset=";

// What stands behind "charset=" near the beginning of an HTML file, in lower case.
QByteArray declaredCharset(const QByteArray &content)
{
    constexpr qsizetype Reach = 1024;
    const QByteArray head = content.first(std::min(content.size(), Reach)).toLower();
    qsizetype at = head.indexOf(Key);
    if (at < 0)
        return {};
    at += Key.size();
    while (at < head.size() && (head[at] == '"' || head[at] == '\''))
        ++at;
    qsizetype end = at;
    while (end < head.size() && (isalnum(static_cast<unsigned char>(head[end])) != 0 ||
                                 head[end] == '-' || head[end] == '_' || head[end] == ':'))
        ++end;
    return head.sliced(at, end - at);
}

// The text by the file's own declaration; nothing when it has none, or one that its bytes do not
// keep to. A declaration that is read byte by byte stands in the text too: a file that names UTF-16
// there, by whatever name, is not in it.
std::optional<QString> decodeAsDeclared(const QByteArray &content)
{
    const QByteArray charset = declaredCharset(content);
    // Stateless: nothing follows that could end a letter begun in the last bytes.
    QStringDecoder decoder(charset.constData(), QStringDecoder::Flag::Stateless);
    if (charset.isEmpty() || !decoder.isValid())
        return std::nullopt;
    const QString text = decoder(content);
    const bool isKept = !decoder.hasError() && text.isValidUtf16() &&
                        text.contains(QLatin1String(Key), Qt::CaseInsensitive);
    return isKept ? std::optional(text) : std::nullopt;
}

} // namespace

QString decodeMessage(const QByteArray &content, MessageKind kind, const CodePage &codePage)
{
    const bool hasMark = content.startsWith("\xEF\xBB\xBF");
    if (kind == MessageKind::Html && !hasMark) {
        if (const auto text = decodeAsDeclared(content))
            return *text;
    }
    return codePage.decode(content);
}

MessageReader::MessageReader(Prompts &prompts, CLog &AppLog, const CodePage &codePage)
    : m_prompts(prompts), m_AppLog(AppLog), m_codePage(codePage)
{}

tl::expected<QString, FileError> MessageReader::read(const QString &path, MessageKind kind) const
{
    const auto bytes = readWholeFile(path);
    if (!bytes)
        return tl::unexpected(bytes.error());
    const QString text = decodeMessage(*bytes, kind, m_codePage);
    QString content;
    content.reserve(text.size() + 2);
    LineReader lines(text);
    while (const auto line = lines.next())
        content.append(*line).append(QLatin1String("\r\n"));
    return content;
}

bool MessageReader::LoadMessageFile(QString &content, const QString &path, MessageKind kind) const
{
    content.clear();
    auto text = read(path, kind);
    if (!text) {
        reportUnreadable(text.error().toText());
        return false;
    }
    content = *std::move(text);
    m_AppLog.WriteMessage(QLatin1String("Message file '") + path + QLatin1String("' loaded"));
    return true;
}

void MessageReader::reportUnreadable(const QString &detail) const
{
    m_prompts.notice(
        {Icon::Critical, tr("Message"), tr("Unable to load the specified message!"), detail});
}
