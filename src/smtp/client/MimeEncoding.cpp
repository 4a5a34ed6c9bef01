#include "smtp/client/MimeEncoding.h"

#include <QList>

#include <gmime/gmime.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// RFC 5322, section 2.1.1: the length a line should not exceed.
constexpr qsizetype GoodLineLength = 78;
/// A word longer than this is not left to folding, which cannot break it.
constexpr qsizetype LongestPlainWord = 200;

struct GFree
{
    void operator()(char *text) const { g_free(text); }
    void operator()(GMimeFormatOptions *options) const { g_mime_format_options_free(options); }
    void operator()(GMimeContentType *type) const { g_object_unref(type); }
    void operator()(GMimeContentDisposition *disposition) const { g_object_unref(disposition); }
};

template <typename T>
using GOwned = std::unique_ptr<T, GFree>;

QByteArray taken(char *text)
{
    return GOwned<char>(text).get();
}

/// What all texts are built with; the library is made ready at the first use.
GMimeFormatOptions *format()
{
    static const GOwned<GMimeFormatOptions> options = [] {
        g_mime_init();
        GOwned<GMimeFormatOptions> made(g_mime_format_options_new());
        g_mime_format_options_set_param_encoding_method(made.get(),
                                                        GMIME_PARAM_ENCODING_METHOD_RFC2231);
        return made;
    }();
    return options.get();
}

/// The lines, ended by LF alone, as they go over the wire.
QByteArray withCrLf(QByteArrayView lines)
{
    QByteArray result;
    result.reserve(lines.size() + lines.count('\n'));
    while (!lines.isEmpty()) {
        const qsizetype end = lines.indexOf('\n');
        if (end < 0)
            return result += lines;
        (result += lines.first(end)) += "\r\n";
        lines = lines.sliced(end + 1);
    }
    return result;
}

/// Whether plain words and folding are not enough: the text looks encoded already, or holds a word
/// longer than a line may be.
bool needsWholeEncoding(const QByteArray &text)
{
    return text.contains("=?") || std::ranges::any_of(text.split(' '), [](const QByteArray &word) {
               return word.size() > LongestPlainWord;
           });
}

/// The whole text as encoded words, a line each, cut between characters (RFC 2047, section 5).
QByteArray encodedWords(const QByteArray &utf8)
{
    constexpr qsizetype BytesInWord = 39;
    const auto beginsCharacter = [&](qsizetype at) {
        return at == utf8.size() || (utf8[at] & '\xc0') != '\x80';
    };
    QByteArray words;
    for (qsizetype begin = 0; begin < utf8.size();) {
        qsizetype end = std::min(begin + BytesInWord, utf8.size());
        while (!beginsCharacter(end))
            --end;
        if (begin > 0)
            words += "\r\n ";
        words += "=?UTF-8?B?" + utf8.sliced(begin, end - begin).toBase64() + "?=";
        begin = end;
    }
    return words;
}

void setParameter(GMimeParamList *list, const char *name, const QString &value)
{
    g_mime_param_list_set_parameter(list, name, value.toUtf8().constData());
    g_mime_param_set_charset(g_mime_param_list_get_parameter(list, name), "utf-8");
}

} // namespace

QString withoutControls(const QString &text)
{
    QString clean = text;
    std::ranges::replace_if(
        clean, [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return clean;
}

QByteArray textHeader(const QByteArray &name, const QString &text)
{
    const QByteArray utf8 = withoutControls(text).trimmed().toUtf8();
    if (needsWholeEncoding(utf8))
        return name + ": " + encodedWords(utf8) + "\r\n";
    const QByteArray value =
        taken(g_mime_utils_header_encode_text(format(), utf8.constData(), "UTF-8"));
    const QByteArray line = name + ": " + value;
    return withCrLf(
        taken(g_mime_utils_unstructured_header_fold(nullptr, format(), line.constData())));
}

QByteArray mailboxHeader(const QByteArray &name, const QString &displayName,
                         const QByteArray &address)
{
    const QByteArray utf8 = withoutControls(displayName).trimmed().toUtf8();
    if (utf8.isEmpty())
        return name + ": " + address + "\r\n";
    QByteArray line = name + ": ";
    if (needsWholeEncoding(utf8)) {
        line += encodedWords(utf8);
    } else {
        line += taken(g_mime_utils_header_encode_phrase(format(), utf8.constData(), "UTF-8"));
        line = withCrLf(
            taken(g_mime_utils_structured_header_fold(nullptr, format(), line.constData())));
        line.chop(2);
    }
    const qsizetype lastLine = line.size() - (line.lastIndexOf('\n') + 1);
    line += lastLine + address.size() + 3 > GoodLineLength ? "\r\n <" : " <";
    return line + address + ">\r\n";
}

QByteArray fileHeaders(const QByteArray &type, const QByteArray &disposition,
                       const QString &fileName)
{
    const QString name = withoutControls(fileName);
    const GOwned<GMimeContentType> contentType(
        g_mime_content_type_parse(nullptr, type.constData()));
    setParameter(g_mime_content_type_get_parameters(contentType.get()), "name", name);
    const GOwned<GMimeContentDisposition> contentDisposition(g_mime_content_disposition_new());
    g_mime_content_disposition_set_disposition(contentDisposition.get(), disposition.constData());
    setParameter(g_mime_content_disposition_get_parameters(contentDisposition.get()), "filename",
                 name);
    return withCrLf(
        "Content-Type:" + taken(g_mime_content_type_encode(contentType.get(), format())) +
        "Content-Disposition:" +
        taken(g_mime_content_disposition_encode(contentDisposition.get(), format())) +
        "Content-Transfer-Encoding: base64\n");
}

// Not the library's encoder: it writes lines of up to 78 characters where blanks fall on a line's
// end.
QByteArray quotedPrintable(const QByteArray &text)
{
    // RFC 2045, section 6.7: the "=" of a line that goes on counts.
    constexpr qsizetype LongestLine = 76;
    constexpr QByteArrayView Digits = "0123456789ABCDEF";
    const auto endsLine = [&](qsizetype at) {
        return at + 1 < text.size() && text[at + 1] == '\n';
    };
    QByteArray result;
    result.reserve(text.size() + text.size() / 4);
    qsizetype begin = 0; // of the line in the result
    const auto breakLine = [&](const char *with) {
        result += with;
        begin = result.size();
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\n') {
            breakLine("\r\n");
            continue;
        }
        const bool isBlank = c == ' ' || c == '\t';
        const bool stands = isBlank ? !endsLine(at) : c > ' ' && c < '\x7f' && c != '=';
        const qsizetype room = LongestLine - (result.size() - begin) - (endsLine(at) ? 0 : 1);
        if (room < (stands ? 1 : 3))
            breakLine("=\r\n");
        if (stands) {
            result += c;
        } else {
            const auto byte = static_cast<uchar>(c);
            ((result += '=') += Digits[byte / 16]) += Digits[byte % 16];
        }
    }
    if (result.size() > begin)
        breakLine("=\r\n"); // the text's last line has no end
    return result;
}

QByteArray base64Lines(const QByteArray &bytes)
{
    GMimeEncoding state;
    g_mime_encoding_init_encode(&state, GMIME_CONTENT_ENCODING_BASE64);
    const auto size = static_cast<std::size_t>(bytes.size());
    QByteArray result(static_cast<qsizetype>(g_mime_encoding_outlen(&state, size)),
                      Qt::Uninitialized);
    result.resize(static_cast<qsizetype>(
        g_mime_encoding_flush(&state, bytes.constData(), size, result.data())));
    return withCrLf(result);
}
