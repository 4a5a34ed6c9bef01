#include "smtp/ObligingServer.h"

#include <QTcpSocket>

ObligingServer::ObligingServer()
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *client = nextPendingConnection()) {
            client->write("220 at your service\r\n");
            connect(client, &QTcpSocket::readyRead, this, [this, client] { serve(client); });
        }
    });
}

void ObligingServer::serve(QTcpSocket *client)
{
    static constexpr auto Content = "content";
    while (client->canReadLine()) {
        QByteArray line = client->readLine();
        if (client->property(Content).toBool()) {
            if (line == ".\r\n") {
                client->setProperty(Content, false);
                client->write("250 queued\r\n");
            } else {
                messages.last() += line.startsWith('.') ? line.sliced(1) : line;
            }
        } else if (line == "DATA\r\n") {
            messages += QByteArray();
            client->setProperty(Content, true);
            client->write("354 go ahead\r\n");
        } else {
            client->write(line.startsWith("RCPT TO:<no") ? "550 no\r\n" : "250 ok\r\n");
        }
    }
}
