#include "smtp/client/HostName.h"

#include <QHostAddress>
#include <QHostInfo>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

QString ownHostName()
{
    const QString name = QHostInfo::localHostName();
    if (name.contains(u'.'))
        return name;
    const QString domain = QHostInfo::localDomainName();
    return name.isEmpty() || domain.isEmpty() ? QString() : name + u'.' + domain;
}

QByteArray ehloName(const QString &hostName, const QHostAddress &ownAddress)
{
    const QByteArray name = QUrl::toAce(hostName);
    const bool isFullName =
        name.contains('.') && std::ranges::all_of(name, [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.';
        });
    if (isFullName)
        return name;
    QHostAddress address = ownAddress;
    address.setScopeId({}); // means nothing to the server
    const QByteArray digits = address.toString().toLatin1();
    return address.protocol() == QAbstractSocket::IPv6Protocol ? "[IPv6:" + digits + ']'
                                                               : '[' + digits + ']';
}
