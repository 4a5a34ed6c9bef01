#include "smtp/MimeReader.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QByteArray decodedQuotedPrintable(QByteArray text)
{
    text.replace("=\r\n", "");
    QByteArray result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '=') {
            result += QByteArray::fromHex(text.mid(i + 1, 2));
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

void readParts(const QByteArray &body, ReadPart &part, QStringList &problems);

ReadPart readPart(const QByteArray &bytes, QStringList &problems)
{
    ReadPart part;
    const qsizetype blankLine = bytes.startsWith("\r\n") ? 0 : bytes.indexOf("\r\n\r\n");
    if (blankLine < 0) {
        problems += u"a header without an end"_s;
        return part;
    }
    QByteArray header = bytes.first(blankLine);
    header.replace("\r\n\t", "\t").replace("\r\n ", " ");
    QSet<QByteArray> names;
    for (const QByteArray &line : header.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon <= 0) {
            problems += u"a line of the header is no field: "_s + QString::fromUtf8(line);
            continue;
        }
        const QByteArray name = line.first(colon);
        if (names.contains(name.toLower()))
            problems += u"a field twice: "_s + QString::fromUtf8(name);
        names += name.toLower();
        part.headers += {name, line.sliced(colon + 1).trimmed()};
    }
    const QByteArray body = bytes.sliced(blankLine + (blankLine == 0 ? 2 : 4));
    const QByteArray encoding = part.header("Content-Transfer-Encoding");
    if (part.header("Content-Type").startsWith("multipart/"))
        readParts(body, part, problems);
    else if (encoding == "base64")
        part.body = QByteArray::fromBase64(body);
    else if (encoding == "quoted-printable")
        part.body = decodedQuotedPrintable(body);
    else if (encoding == "7bit")
        part.body = body;
    else
        problems += u"an unknown encoding: "_s + QString::fromUtf8(encoding);
    return part;
}

void readParts(const QByteArray &body, ReadPart &part, QStringList &problems)
{
    const QByteArray boundary = parameter(part.header("Content-Type"), "boundary").toUtf8();
    if (boundary.isEmpty() ||
        QRegularExpression(u"^-*[0-9]+$"_s).match(QString::fromUtf8(boundary)).hasMatch())
        problems += u"a bad boundary: "_s + QString::fromUtf8(boundary);
    const QByteArray delimiter = "\r\n--" + boundary;
    const QByteArray whole = "\r\n" + body;
    qsizetype begin = whole.indexOf(delimiter);
    while (begin >= 0) {
        begin += delimiter.size();
        if (whole.mid(begin, 2) == "--")
            return;
        const qsizetype end = whole.indexOf(delimiter, begin);
        if (end < 0)
            break;
        part.parts += readPart(whole.sliced(begin + 2, end - begin - 2), problems);
        begin = end;
    }
    problems += u"a multipart without an end"_s;
}

} // namespace

QByteArray ReadPart::header(const QByteArray &name) const
{
    for (const auto &[field, value] : headers) {
        if (field == name)
            return value;
    }
    return {};
}

QString ReadPart::outline() const
{
    const QByteArray type = header("Content-Type");
    QString text = QString::fromUtf8(type.split(';').first());
    QStringList inner;
    for (const ReadPart &part : parts)
        inner += part.outline();
    if (!inner.isEmpty())
        text += u'[' + inner.join(u' ') + u']';
    return text;
}

ReadPart readMessage(const QByteArray &message, QStringList &problems)
{
    QByteArray rest = message;
    rest.replace("\r\n", "");
    if (rest.contains('\r') || rest.contains('\n'))
        problems += u"a bare CR or LF"_s;
    if (!message.endsWith("\r\n"))
        problems += u"no line end at the end"_s;
    for (const QByteArray &line : message.split('\n')) {
        if (line.size() > 999)
            problems += u"a line of %1 bytes"_s.arg(line.size() - 1);
    }
    for (const char c : rest) {
        if ((c < ' ' || c == '\x7f') && c != '\t') {
            problems += u"a byte that is not printable ASCII: %1"_s.arg(static_cast<uchar>(c));
            break;
        }
    }
    return readPart(message, problems);
}

QString decodedWords(const QByteArray &value)
{
    static const QRegularExpression Word(u"=\\?([^?]+)\\?([BbQq])\\?([^?]*)\\?="_s);
    static const QRegularExpression Between(u"(\\?=)\\s+(=\\?)"_s);
    QString text = QString::fromLatin1(value).replace(Between, u"\\1\\2"_s);
    QByteArray bytes; // neighbouring words may share a character
    QString result;
    qsizetype at = 0;
    const auto flush = [&] {
        result += QString::fromUtf8(bytes);
        bytes.clear();
    };
    for (auto matches = Word.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        if (match.capturedStart() > at) {
            flush();
            result += text.sliced(at, match.capturedStart() - at);
        }
        const QByteArray data = match.captured(3).toLatin1();
        const QByteArray decoded = match.captured(2).toUpper() == u"B"_s
                                       ? QByteArray::fromBase64(data)
                                       : decodedQuotedPrintable(QByteArray(data).replace('_', ' '));
        bytes += match.captured(1).toUpper() == u"UTF-8"_s ? decoded
                                                           : QString::fromLatin1(decoded).toUtf8();
        at = match.capturedEnd();
    }
    flush();
    return result + text.sliced(at);
}

QString parameter(const QByteArray &value, const QByteArray &name)
{
    const QString text = QString::fromUtf8(value);
    const QString key = QString::fromUtf8(name);
    const QRegularExpression plain(u";\\s*%1=(?:\"((?:[^\"\\\\]|\\\\.)*)\"|([^;\\s]+))"_s.arg(key));
    if (const auto match = plain.match(text); match.hasMatch())
        return match.captured(2).isEmpty()
                   ? match.captured(1).replace(QRegularExpression(u"\\\\(.)"_s), u"\\1"_s)
                   : match.captured(2);
    // RFC 2231: name*=utf-8''..., name*0*=utf-8''...; name*1*=...
    const QRegularExpression piece(u";\\s*%1\\*(?:[0-9]+\\*?)?=([^;\\s]+)"_s.arg(key));
    QByteArray encoded;
    for (auto matches = piece.globalMatch(text); matches.hasNext();)
        encoded += matches.next().captured(1).toLatin1();
    const qsizetype quote = encoded.indexOf("''");
    if (quote < 0 || encoded.first(quote).toLower() != "utf-8")
        return {};
    return QString::fromUtf8(QByteArray::fromPercentEncoding(encoded.sliced(quote + 2)));
}
