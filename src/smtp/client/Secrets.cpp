#include "smtp/client/Secrets.h"

#include "smtp/client/AuthExchange.h"

using namespace Qt::StringLiterals;

namespace {

/// To replace a shorter one would tear ordinary words apart, and so tell what it is.
constexpr qsizetype ShortestHidden = 4;

} // namespace

void Secrets::learn(const Login &login)
{
    const QByteArray secret = login.secret.toUtf8();
    if (secret.size() >= ShortestHidden)
        m_forms += login.secret;
    for (const QByteArray &bytes : {secret, plainResponse(login), tokenResponse(login)})
        m_forms += QString::fromLatin1(bytes.toBase64(QByteArray::OmitTrailingEquals));
    m_forms.removeDuplicates();
    m_forms.removeAll(QString());
    // A form that holds another one goes first.
    std::ranges::sort(m_forms, std::ranges::greater(), &QString::size);
}

QString Secrets::hide(QString text) const
{
    for (const QString &form : m_forms)
        text.replace(form, "***"_L1);
    return text;
}
