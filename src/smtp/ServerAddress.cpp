#include "smtp/ServerAddress.h"

#include "base/Numbers.h"

tl::expected<ServerAddress, QString> ServerAddress::parse(const QString &text)
{
    constexpr quint16 StandardPort = 25;
    constexpr qint64 HighestPort = 65535;
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0)
        return ServerAddress{text.trimmed(), StandardPort};
    const QString portText = text.mid(colon + 1);
    const auto port = wholeNumber(portText, 1, HighestPort);
    if (!port)
        return tl::unexpected(portText);
    return ServerAddress{text.left(colon).trimmed(), static_cast<quint16>(*port)};
}

QString ServerAddress::toText() const
{
    return host + u':' + QString::number(port);
}
