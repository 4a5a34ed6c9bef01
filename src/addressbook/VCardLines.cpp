#include "addressbook/VCardLines.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr int NoPreference = 101;

constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";
constexpr QByteArrayView QuotedPrintable = "QUOTED-PRINTABLE";

bool isQuotedPrintable(const QByteArray &line)
{
    return line.left(line.indexOf(':')).toUpper().contains(QuotedPrintable);
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

/// What is no encoded byte stays as it is (RFC 2045 section 6.7).
QByteArray fromQuotedPrintable(const QByteArray &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool mayBeCode = text[i] == '=' && i + 2 < text.size();
        const int high = mayBeCode ? hexDigit(text[i + 1]) : -1;
        const int low = mayBeCode ? hexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0) {
            bytes += text[i];
        } else {
            bytes += static_cast<char>(high * 16 + low);
            i += 2;
        }
    }
    return bytes;
}

/// Undoes the escapes of RFC 6350 section 3.4; any other backslash is a backslash.
QString unescaped(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : QChar();
        if (next == u'n' || next == u'N')
            plain += u'\n';
        else if (next == u',' || next == u';' || next == u'\\')
            plain += next;
        else {
            plain += text[i];
            continue;
        }
        ++i;
    }
    return plain;
}

/// The length of the text up to the first of these characters that is not between double quotes. A
/// quote that is never closed is a character like others.
qsizetype lengthUpTo(QByteArrayView characters, QByteArrayView text)
{
    bool quoted = false;
    const auto end = std::find_if(text.begin(), text.end(), [&](char c) {
        quoted ^= c == '"';
        return !quoted && characters.contains(c);
    });
    if (!quoted)
        return end - text.begin();
    return std::find_if(text.begin(), text.end(), [&](char c) { return characters.contains(c); }) -
           text.begin();
}

} // namespace

QByteArrayView VCardLines::nextUnfolded()
{
    const auto end =
        std::find_if(m_rest.begin(), m_rest.end(), [](char c) { return c == '\r' || c == '\n'; });
    const QByteArrayView line = m_rest.first(end - m_rest.begin());
    m_rest = m_rest.sliced(line.size());
    if (!m_rest.isEmpty())
        m_rest = m_rest.sliced(m_rest.startsWith("\r\n") ? 2 : 1);
    return line;
}

std::optional<QByteArray> VCardLines::next()
{
    if (m_rest.isEmpty())
        return std::nullopt;
    QByteArrayView start = nextUnfolded();
    // Files that were put together keep their marks.
    if (start.startsWith(ByteOrderMark))
        start = start.sliced(ByteOrderMark.size());
    QByteArray line = start.toByteArray();
    const bool mayBreakSoftly = isQuotedPrintable(line);
    while (!m_rest.isEmpty()) {
        if (mayBreakSoftly && line.endsWith('=')) {
            line.chop(1);
            line += nextUnfolded();
        } else if (m_rest.front() == ' ' || m_rest.front() == '\t') {
            line += nextUnfolded().sliced(1);
        } else {
            break;
        }
    }
    return line;
}

VCardProperty::VCardProperty(const QByteArray &line)
{
    QByteArrayView rest = line;
    const auto takeUpTo = [&rest](QByteArrayView characters) {
        const QByteArrayView part = rest.first(lengthUpTo(characters, rest));
        rest = rest.sliced(part.size());
        return part;
    };
    const QByteArray name = takeUpTo(";:").trimmed().toByteArray().toUpper();
    while (rest.startsWith(';')) {
        rest = rest.sliced(1);
        // A value in quotes may itself be a list, as in TYPE="cell,voice".
        QByteArray parameter = takeUpTo(";:").toByteArray().toUpper().replace('"', "");
        const qsizetype equals = parameter.indexOf('=');
        m_parameters.push_back({parameter.left(std::max<qsizetype>(equals, 0)).trimmed(),
                                parameter.mid(equals + 1).trimmed().split(',')});
    }
    m_isBroken = rest.isEmpty() && !line.trimmed().isEmpty();
    if (rest.isEmpty())
        return;
    m_name = name.mid(name.lastIndexOf('.') + 1);
    m_value = rest.sliced(1).toByteArray();
}

bool VCardProperty::delimitsCard(QByteArrayView name) const
{
    return m_name == name && m_value.trimmed().compare("VCARD", Qt::CaseInsensitive) == 0;
}

bool VCardProperty::hasContent() const
{
    return std::any_of(m_value.begin(), m_value.end(),
                       [](char c) { return !QByteArrayView(" \t;,").contains(c); });
}

bool VCardProperty::has(QByteArrayView parameter, QByteArrayView value) const
{
    return std::any_of(m_parameters.begin(), m_parameters.end(), [&](const Parameter &one) {
        return (one.name == parameter || one.name.isEmpty()) &&
               std::find(one.values.begin(), one.values.end(), value) != one.values.end();
    });
}

QByteArray VCardProperty::firstValue(QByteArrayView parameter) const
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&](const Parameter &one) { return one.name == parameter; });
    return found == m_parameters.end() ? QByteArray() : found->values.front();
}

int VCardProperty::preference() const
{
    if (has("TYPE", "PREF"))
        return 1;
    bool isNumber = false;
    const int preference = firstValue("PREF").toInt(&isNumber);
    return isNumber ? preference : NoPreference;
}

QByteArray VCardProperty::decodedBytes() const
{
    if (has("ENCODING", QuotedPrintable))
        return fromQuotedPrintable(m_value);
    if (has("ENCODING", "BASE64") || has("ENCODING", "B"))
        return QByteArray::fromBase64(m_value);
    return m_value;
}

QString VCardProperty::escapedText(const CodePage &codePage) const
{
    const QByteArray bytes = decodedBytes();
    if (const QByteArray charset = firstValue("CHARSET"); !charset.isEmpty()) {
        QStringDecoder decoder(charset.constData(), QStringDecoder::Flag::Stateless);
        if (decoder.isValid()) {
            QString text = decoder(bytes);
            if (!decoder.hasError())
                return text;
        }
    }
    // Each value for itself: a file may be put together of cards that several programs wrote.
    return codePage.decode(bytes);
}

QString VCardProperty::text(const CodePage &codePage) const
{
    return unescaped(escapedText(codePage)).trimmed();
}

QStringList VCardProperty::components(const CodePage &codePage) const
{
    const QString text = escapedText(codePage);
    QStringList components;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || text[i] == u';') {
            components += unescaped(QStringView(text).sliced(start, i - start)).trimmed();
            start = i + 1;
        } else if (text[i] == u'\\' && i + 1 < text.size()) {
            ++i;
        }
    }
    return components;
}
