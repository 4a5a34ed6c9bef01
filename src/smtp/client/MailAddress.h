#pragma once

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

/// An address as the SMTP dialogue and the header lines carry it.
struct MailAddress
{
    QByteArray bytes;           ///< without angle brackets; the domain in its "xn--" form
    bool needsSmtpUtf8 = false; ///< the part before "@" is not ASCII (RFC 6531)

    /// The address that a person wrote, or why it cannot be used, in plain words. What comes out
    /// cannot end a command or a header line, whatever goes in.
    [[nodiscard]] static tl::expected<MailAddress, QString> parse(QStringView written);
};
