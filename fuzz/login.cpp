// The dialogue of a login: whatever a name, a password and an offer hold, each thing said is one
// line, by a mechanism that was offered, and says the login and nothing else.

#include "Fuzzing.h"
#include "smtp/client/AuthExchange.h"

namespace {

/// What a line says behind its beginning, decoded.
QByteArray decoded(const QByteArray &line, const QByteArray &beginning)
{
    mustHold(line.startsWith(beginning) && line.endsWith("\r\n"), "what is said is a line");
    const QByteArray text = line.sliced(beginning.size()).chopped(2);
    const auto result =
        QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    mustHold(result && (*result).toBase64() == text, "what is said is base64");
    return *result;
}

void checkExchange(AuthExchange &exchange, const Login &login)
{
    const QByteArray user = login.user.toUtf8();
    const QByteArray secret = login.secret.toUtf8();
    const QByteArray mechanism = exchange.mechanism();
    mustHold((mechanism == "XOAUTH2") == (login.kind == Login::Kind::Token),
             "a token is no password");
    const QByteArray command = "AUTH " + mechanism;
    if (mechanism == "LOGIN") {
        mustHold(exchange.command() == command + "\r\n", "the name is not said before it is asked");
        mustHold(decoded(exchange.answer().value_or("none"), {}) == user, "the name is said first");
        mustHold(decoded(exchange.answer().value_or("none"), {}) == secret,
                 "the password is said behind it");
    } else {
        const QByteArray response = decoded(exchange.command(), command + ' ');
        if (mechanism == "PLAIN")
            mustHold(response.split('\0') == QList<QByteArray>{{}, user, secret},
                     "the login is said in three parts");
        else
            mustHold(response == tokenResponse(login) && exchange.answer() == QByteArray("\r\n"),
                     "the token is said, and an error is answered");
    }
    mustHold(!exchange.answer(), "the dialogue ends");
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    Pieces pieces(bytes);
    Login login;
    login.kind = pieces.next().isEmpty() ? Login::Kind::Password : Login::Kind::Token;
    login.user = QString::fromUtf8(pieces.next());
    login.secret = QString::fromUtf8(pieces.next());
    const Extensions extensions = Extensions::fromEhlo(pieces.next().toByteArray());
    auto exchange = AuthExchange::begin(login, extensions);
    if (!exchange) {
        mustHold(!exchange.error().isEmpty(), "it is said why there is no login");
        return;
    }
    mustHold(extensions.authMechanisms.contains(exchange->mechanism()), "it was offered");
    checkExchange(*exchange, login);
}
