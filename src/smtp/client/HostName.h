#pragma once

#include <QByteArray>
#include <QString>

class QHostAddress;

/// The full name of this machine, empty when it has none.
[[nodiscard]] QString ownHostName();

/// What EHLO says: the name when it is a full domain name, else the address literal of RFC 5321,
/// section 4.1.3.
[[nodiscard]] QByteArray ehloName(const QString &hostName, const QHostAddress &ownAddress);
