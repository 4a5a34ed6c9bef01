#pragma once

#include <QString>

/// The numbers of SmtpError.
enum class SmtpErrorNumber : qint32 {
    BadPort = 1,       ///< Port is not from 1 to 65535
    NoServer = 2,      ///< Server is empty
    NotConnected = 3,  ///< Send without a session
    CannotConnect = 4, ///< no such host, connection refused, network failure
    ServerRefuses = 5, ///< a negative reply to the connection, EHLO or HELO
    Closed = 6,        ///< the server closed the connection
    TimedOut = 7,      ///< the server was silent for too long
    Unreadable = 8,    ///< what the server said is no SMTP reply
    NotTaken = 9,      ///< twice no answer to a message; it was certainly not accepted
    InDoubt = 10,      ///< the message was transferred, whether it was accepted is unknown
};

/// Why a session ended or did not begin.
struct SessionFault
{
    SmtpErrorNumber number = SmtpErrorNumber::Closed;
    QString reason; ///< plain words without the server's name, such as "the connection was closed"
};
