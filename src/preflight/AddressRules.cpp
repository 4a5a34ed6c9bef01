#include "preflight/AddressRules.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AddressRules)
};

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

bool isQuoted(QStringView text)
{
    return text.size() > 2 && text.startsWith(u'"') && text.endsWith(u'"');
}

// An address literal such as [192.0.2.1] (RFC 5321, section 4.1.3).
bool isLiteral(QStringView domain)
{
    return domain.size() > 2 && domain.startsWith(u'[') && domain.endsWith(u']');
}

bool holdsAnyOf(QStringView text, QStringView characters)
{
    return std::any_of(text.begin(), text.end(),
                       [characters](QChar c) { return characters.contains(c); });
}

bool holdsBlank(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

bool isCompleteDomain(QStringView domain)
{
    return domain.contains(u'.') && !domain.startsWith(u'.') && !domain.endsWith(u'.') &&
           !domain.contains(QLatin1String(".."));
}

struct Provider
{
    const char *domains; ///< of its mail boxes
    const char *servers; ///< the domains that its servers are in
};

// Blanks separate.
constexpr std::array Providers{
    Provider{"gmail.com googlemail.com", "gmail.com googlemail.com google.com"},
    Provider{"outlook.com outlook.it hotmail.com hotmail.it live.com live.it msn.com",
             "outlook.com office365.com hotmail.com live.com"},
    Provider{"yahoo.com yahoo.it ymail.com", "yahoo.com yahoo.it"},
    Provider{"aol.com", "aol.com"},
    Provider{"icloud.com me.com mac.com", "icloud.com me.com"},
    Provider{"gmx.com gmx.net gmx.de web.de", "gmx.com gmx.net web.de"},
    Provider{"libero.it iol.it inwind.it blu.it giallo.it", "libero.it iol.it"},
    Provider{"virgilio.it alice.it tim.it tin.it", "virgilio.it alice.it tim.it tin.it"},
    Provider{"tiscali.it", "tiscali.it"},
    Provider{"fastwebnet.it", "fastwebnet.it"},
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

bool isIn(const QString &host, const QString &domain)
{
    return host == domain || host.endsWith(u'.' + domain);
}

} // namespace

QString faultOfAddress(QStringView written)
{
    const QStringView text = written.trimmed();
    if (text.isEmpty())
        return Texts::tr("it is empty");
    if (std::any_of(text.begin(), text.end(), isControl))
        return Texts::tr("it holds control characters");
    const qsizetype at = text.lastIndexOf(u'@');
    const QStringView local = text.first(std::max<qsizetype>(at, 0));
    const QStringView domain = text.sliced(at + 1);
    if (local.isEmpty() || domain.isEmpty())
        return Texts::tr("it has no \"@\" between a name and a domain");
    const QStringView name = isQuoted(local) ? QStringView() : local;
    if (holdsBlank(name) || holdsBlank(domain))
        return Texts::tr("it holds a blank");
    const bool holdsForbidden = holdsAnyOf(name, u"()<>[]:;,\\\"@");
    if (holdsForbidden || (!isLiteral(domain) && holdsAnyOf(domain, u"()<>[]:;,\\\"")))
        return Texts::tr("it holds characters that no address may hold");
    if (!isLiteral(domain) && !isCompleteDomain(domain))
        return Texts::tr("its domain is not complete");
    return {};
}

QString addressKey(const QString &address)
{
    return address.trimmed().toLower();
}

QString foreignProvider(const QString &address, const QString &serverHost)
{
    const QString key = addressKey(address);
    const QString domain = key.mid(key.lastIndexOf(u'@') + 1);
    const QString host = addressKey(serverHost);
    for (const Provider &provider : Providers) {
        if (!words(provider.domains).contains(domain))
            continue;
        const QStringList servers = words(provider.servers);
        const bool isOwn = std::any_of(servers.begin(), servers.end(),
                                       [&host](const QString &own) { return isIn(host, own); });
        return isOwn ? QString() : domain;
    }
    return {};
}
