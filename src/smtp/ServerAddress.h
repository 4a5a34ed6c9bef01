#pragma once

#include <QString>

#include <tl/expected.hpp>

/// A server as people write it: its name or address, and a port behind ":".
struct ServerAddress
{
    QString host;
    quint16 port = 0;

    /// Blanks around the host are no part of it. Port 25 when the text names none (RFC 5321,
    /// section 4.5.4.2). The error is the text behind the ":" that is no number from 1 to 65535.
    [[nodiscard]] static tl::expected<ServerAddress, QString> parse(const QString &text);

    /// "host:port"
    [[nodiscard]] QString toText() const;

    bool operator==(const ServerAddress &) const = default;
};
