#pragma once

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

/// Builds a message without sending it.
class MessageComposer
{
public:
    MessageComposer() = default;
    MessageComposer(const MessageComposer &) = delete;
    MessageComposer &operator=(const MessageComposer &) = delete;
    virtual ~MessageComposer() = default;

    /// The message that Send would transmit now, with CR LF line ends and before dot-stuffing, or
    /// the reason why it cannot be built (an attachment that cannot be read). Empties the
    /// attachments as Send does, and the next inline file begins a new set, as after a Connect.
    [[nodiscard]] virtual tl::expected<QByteArray, QString> compose() = 0;
};
