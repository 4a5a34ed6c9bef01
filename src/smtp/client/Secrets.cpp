#include "smtp/client/Secrets.h"

#include "smtp/client/AuthExchange.h"

#include <algorithm>
#include <functional>

namespace {

/// To replace a shorter one would tear ordinary words apart, and so tell what it is.
constexpr qsizetype ShortestHidden = 4;

} // namespace

void Secrets::learn(const Login &login)
{
    const QByteArray secret = login.secret.toUtf8();
    if (secret.size() >= ShortestHidden)
        m_forms += secret;
    for (const QByteArray &bytes : {secret, plainResponse(login), tokenResponse(login)})
        m_forms += bytes.toBase64(QByteArray::OmitTrailingEquals);
    m_forms.removeAll(QByteArray());
    // A form that holds another one goes first.
    std::ranges::sort(m_forms, std::ranges::greater(), &QByteArray::size);
}

QByteArray Secrets::hide(QByteArray bytes) const
{
    for (const QByteArray &form : m_forms)
        bytes.replace(form, "***");
    return bytes;
}
