#pragma once

#include <QByteArray>
#include <QTcpServer>

/// A server that accepts every message, but for recipients whose address begins with "no".
class ObligingServer : public QTcpServer
{
    Q_OBJECT

public:
    ObligingServer();

    QList<QByteArray> messages; ///< as they came, dots undone

private:
    void serve(class QTcpSocket *client);
};
