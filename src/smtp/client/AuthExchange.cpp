#include "smtp/client/AuthExchange.h"

using namespace Qt::StringLiterals;

QByteArray plainResponse(const Login &login)
{
    return '\0' + login.user.toUtf8() + '\0' + login.secret.toUtf8();
}

QByteArray tokenResponse(const Login &login)
{
    return "user=" + login.user.toUtf8() + "\x01" + "auth=Bearer " + login.secret.toUtf8() +
           "\x01\x01";
}

tl::expected<AuthExchange, QString> AuthExchange::begin(const Login &login,
                                                        const Extensions &extensions)
{
    const auto offers = [&](const QByteArray &name) {
        return extensions.authMechanisms.contains(name);
    };
    if (login.user.contains(QChar::Null) || login.secret.contains(QChar::Null))
        return tl::unexpected(u"the user name or the password holds a NUL character"_s);
    if (login.kind == Login::Kind::Token && offers("XOAUTH2"_qba)) {
        // An error comes as a challenge, which an empty line answers.
        return AuthExchange("XOAUTH2"_qba, tokenResponse(login).toBase64(), {QByteArray()});
    }
    if (login.kind == Login::Kind::Password && offers("PLAIN"_qba))
        return AuthExchange("PLAIN"_qba, plainResponse(login).toBase64(), {});
    if (login.kind == Login::Kind::Password && offers("LOGIN"_qba)) {
        return AuthExchange("LOGIN"_qba, std::nullopt,
                            {login.user.toUtf8().toBase64(), login.secret.toUtf8().toBase64()});
    }
    return tl::unexpected(
        login.kind == Login::Kind::Token
            ? u"the server does not take an access token (XOAUTH2); it offers "_s +
                  extensions.authOffer
            : u"the server takes no password in a way that this program knows; it offers "_s +
                  extensions.authOffer);
}

QByteArray AuthExchange::command() const
{
    return "AUTH " + m_mechanism + (m_initial ? ' ' + *m_initial : QByteArray()) + "\r\n";
}

std::optional<QByteArray> AuthExchange::answer()
{
    if (m_answers.isEmpty())
        return std::nullopt;
    return m_answers.takeFirst() + "\r\n";
}
