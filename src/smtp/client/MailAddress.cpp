#include "smtp/client/MailAddress.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// RFC 5321, section 4.5.3.1.3: a path has 256 octets, its angle brackets included.
constexpr qsizetype LongestAddress = 254;

bool isLetterOrDigit(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

/// A character of a dot-string (RFC 5321, section 4.1.2), also beyond ASCII (RFC 6531).
bool isAtext(char16_t c)
{
    return isLetterOrDigit(c) || c >= 0xa0 || QStringView(u".!#$%&'*+-/=?^_`{|}~").contains(c);
}

/// A quoted string with nothing in it that would have to be escaped.
bool isQuotedString(QStringView text)
{
    return text.size() > 2 && text.startsWith(u'"') && text.endsWith(u'"') &&
           std::ranges::all_of(text.sliced(1, text.size() - 2), [](QChar c) {
               return c >= u' ' && c != u'"' && c != u'\\' && (c < u'\x7f' || c >= u'\xa0');
           });
}

bool isDomain(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) {
        return isLetterOrDigit(c.unicode()) || QStringView(u"-_.").contains(c);
    });
}

/// An address literal such as [192.0.2.1].
bool isLiteral(QStringView text)
{
    return text.size() > 2 && text.startsWith(u'[') && text.endsWith(u']') &&
           std::ranges::all_of(text.sliced(1, text.size() - 2), [](QChar c) {
               return isLetterOrDigit(c.unicode()) || QStringView(u"-.:").contains(c);
           });
}

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c < u'\x80'; });
}

} // namespace

tl::expected<MailAddress, QString> MailAddress::parse(QStringView written)
{
    const QStringView text = written.trimmed();
    if (text.isEmpty())
        return tl::unexpected(u"the address is empty"_s);
    const qsizetype at = text.lastIndexOf(u'@');
    const QStringView local = text.first(std::max<qsizetype>(at, 0));
    const QStringView domain = text.sliced(at + 1);
    if (local.isEmpty() || domain.isEmpty())
        return tl::unexpected(u"the address has no \"@\" between a name and a domain"_s);
    const bool localStands = isQuotedString(local) || std::ranges::all_of(local, [](QChar c) {
                                 return isAtext(c.unicode());
                             });
    if (!localStands || !local.isValidUtf16())
        return tl::unexpected(u"the address holds characters that no address may hold"_s);

    MailAddress address;
    address.needsSmtpUtf8 = !isAscii(local);
    address.bytes = local.toUtf8() + '@';
    if (isDomain(domain) || isLiteral(domain)) {
        address.bytes += domain.toLatin1();
    } else {
        const QByteArray ace = isAscii(domain) ? QByteArray() : QUrl::toAce(domain.toString());
        if (ace.isEmpty() || !isDomain(QString::fromLatin1(ace)))
            return tl::unexpected(u"the domain of the address is not valid"_s);
        address.bytes += ace;
    }
    if (address.bytes.size() > LongestAddress)
        return tl::unexpected(u"the address is longer than %1 bytes"_s.arg(LongestAddress));
    return address;
}
