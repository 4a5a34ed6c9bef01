#pragma once

#include <QString>
#include <QStringView>

/// Why no server takes that address, in plain words; empty when one may. It is stricter than the
/// rule by which the program lets an address in.
[[nodiscard]] QString faultOfAddress(QStringView written);

/// The address as receivers tell them apart: letter case and blanks around it make no difference.
/// The name before "@" may have one by the letter of RFC 5321, section 2.4; nobody makes use of it.
[[nodiscard]] QString addressKey(const QString &address);

/// The provider of free mail boxes that an address belongs to while the server does not: receivers
/// know which servers that provider's mail comes from. Empty when all is in order.
[[nodiscard]] QString foreignProvider(const QString &address, const QString &serverHost);
