#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/// What the server says it can do, in its answer to EHLO.
struct Extensions
{
    bool pipelining = false;   ///< RFC 2920
    bool chunking = false;     ///< RFC 3030
    bool smtpUtf8 = false;     ///< RFC 6531
    bool startTls = false;     ///< RFC 3207
    bool size = false;         ///< RFC 1870
    qint64 largestMessage = 0; ///< the largest message in bytes; 0: no fixed limit
    bool auth = false;         ///< RFC 4954
    /// Those of its mechanisms that this program knows.
    QList<QByteArray> authMechanisms = {};
    QString authOffer = {}; ///< all of them, for people; cut when there are too many
    QStringList lines = {}; ///< as the server said them

    /// From the lines of the reply, joined by LF; the first one names the server.
    [[nodiscard]] static Extensions fromEhlo(const QByteArray &lines);
};
