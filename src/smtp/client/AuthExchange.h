#pragma once

#include "smtp/LoginSource.h"
#include "smtp/client/Extensions.h"

#include <QList>

#include <optional>

/// The one message of PLAIN (RFC 4616) and of XOAUTH2, before base64.
[[nodiscard]] QByteArray plainResponse(const Login &login);
[[nodiscard]] QByteArray tokenResponse(const Login &login);

/// The dialogue of one login (RFC 4954): what to say next. Knows no socket.
class AuthExchange
{
public:
    /// By the best mechanism that suits the login; the error says, in plain words, that none does.
    [[nodiscard]] static tl::expected<AuthExchange, QString> begin(const Login &login,
                                                                   const Extensions &extensions);

    [[nodiscard]] QByteArray mechanism() const { return m_mechanism; }
    /// The command that begins it, with its line end.
    [[nodiscard]] QByteArray command() const;
    /// The answer to the server's next challenge (a reply 334), with its line end; nothing when
    /// there is nothing more to say.
    [[nodiscard]] std::optional<QByteArray> answer();

private:
    AuthExchange(QByteArray mechanism, std::optional<QByteArray> initial, QList<QByteArray> answers)
        : m_mechanism(std::move(mechanism)),
          m_initial(std::move(initial)),
          m_answers(std::move(answers))
    {}

    QByteArray m_mechanism;
    std::optional<QByteArray> m_initial; ///< the initial response, in base64
    QList<QByteArray> m_answers;         ///< to the challenges to come, in base64
};
