#include "smtp/client/TextPart.h"

#include "smtp/client/MimeEncoding.h"

#include <algorithm>
#include <string_view>

namespace {

/// RFC 5322, section 2.1.1: no line is longer, its end not counted.
constexpr std::size_t LongestLine = 998;

/// Whether each CR stands before an LF and each LF behind a CR.
bool hasOnlyCrLf(std::string_view text)
{
    std::size_t ends = 0;
    for (std::size_t at = text.find('\n'); at != std::string_view::npos;
         at = text.find('\n', at + 1)) {
        if (at == 0 || text[at - 1] != '\r')
            return false;
        ++ends;
    }
    return static_cast<std::size_t>(std::ranges::count(text, '\r')) == ends;
}

/// CR LF, LF and CR all end a line.
QByteArray withCrLf(QByteArray text)
{
    return text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\r\n");
}

bool hasShortLines(std::string_view text)
{
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', begin)) {
        if (end - begin > LongestLine + 1) // the CR is counted here
            return false;
        begin = end + 1;
    }
    return text.size() - begin <= LongestLine;
}

/// RFC 2045, section 2.7: 7-bit data are ASCII without NUL; other control characters are encoded
/// too, because servers strip or refuse them.
bool isPlainAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) {
        return (c >= ' ' && c < '\x7f') || c == '\r' || c == '\n' || c == '\t';
    });
}

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

void TextPart::setText(const QString &text)
{
    if (!m_headers.isEmpty() && text == m_text)
        return;
    m_text = text;
    m_body = text.toUtf8();
    if (!hasOnlyCrLf(view(m_body)))
        m_body = withCrLf(m_body);
    const bool isPlain = isPlainAscii(view(m_body)) && hasShortLines(view(m_body));
    if (!isPlain)
        m_body = quotedPrintable(m_body.removeIf([](char c) { return c == '\r'; }));
    m_headers = "Content-Type: text/" + m_subtype +
                "; charset=utf-8\r\nContent-Transfer-Encoding: " +
                (isPlain ? "7bit\r\n\r\n" : "quoted-printable\r\n\r\n");
}
