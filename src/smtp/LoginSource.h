#pragma once

#include "smtp/ServerAddress.h"

#include <functional>

/// Who somebody is for a server. Never written to a file, a log or a trace.
struct Login
{
    enum class Kind {
        Password,
        Token ///< an OAuth 2.0 access token (RFC 6749, section 1.4)
    };

    Kind kind = Kind::Password;
    QString user;
    QString secret;
};

/// A session's wish for a login.
struct LoginRequest
{
    ServerAddress server;
    int refusals = 0;             ///< how many logins the server has refused in a row
    QString refusal;              ///< why it refused the last one, in plain words
    std::function<bool()> stands; ///< false once nobody waits for the answer any more
};

/// The login, or why there is none, in plain words without the server's name.
using LoginAnswer = tl::expected<Login, QString>;

/// Where the client gets the logins from: a keyring, a file, a person.
class LoginSource
{
public:
    LoginSource() = default;
    LoginSource(const LoginSource &) = delete;
    LoginSource &operator=(const LoginSource &) = delete;
    virtual ~LoginSource() = default;

    /// Looks for a login. The answer is posted, never given from inside the call; none comes when
    /// the request does not stand any more. After a refusal another login is looked for, not the
    /// same again.
    virtual void find(const LoginRequest &request, std::function<void(LoginAnswer)> then) = 0;
    /// A request that was made does not stand any more: what was begun for it, such as a box, can
    /// be given up.
    virtual void dropStale() = 0;
    /// The server accepted the login that was found last: it can be kept.
    virtual void accepted(const ServerAddress &server, const Login &login) = 0;
    /// The server refused it for good: it is not to be kept.
    virtual void refused(const ServerAddress &server, const Login &login) = 0;
};
