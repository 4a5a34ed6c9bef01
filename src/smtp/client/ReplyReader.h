#pragma once

#include "base/ServerReply.h"
#include "smtp/client/Limits.h"

#include <QByteArray>

#include <tl/expected.hpp>

#include <optional>

/// A server's words: UTF-8 (RFC 6531) or what its machine writes; control characters become blanks.
[[nodiscard]] QString printable(QByteArrayView bytes);

/// A reply as it came: all lines without the codes, joined by LF.
struct WireReply
{
    int code = 0;
    QByteArray lines;

    /// As the answer to a command: the enhanced code (RFC 2034) taken out of the text, control
    /// characters made blanks.
    [[nodiscard]] ServerReply toServerReply(SmtpVerb verb) const;
};

/// Cuts the server's bytes, in whatever chunks they come, into replies (RFC 5321, section 4.2).
class ReplyReader
{
public:
    explicit ReplyReader(const Limits &limits) : m_limits(limits) {}

    void feed(QByteArrayView bytes) { m_input += bytes; }
    /// The next whole reply; none when more bytes are needed. An error, in plain words, when the
    /// bytes are no reply: nothing more can be read then.
    [[nodiscard]] tl::expected<std::optional<WireReply>, QString> next();
    /// Forgets what is left, for another connection.
    void clear();
    /// Nothing is left, not even a part of a reply.
    [[nodiscard]] bool isEmpty() const { return m_input.isEmpty() && m_lineCount == 0; }

private:
    const Limits m_limits;
    QByteArray m_input; ///< bytes not yet read
    WireReply m_reply;  ///< the lines of a reply that goes on
    int m_lineCount = 0;
};
