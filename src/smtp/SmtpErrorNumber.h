#pragma once

#include <QtGlobal>

/// The numbers of SmtpError, all in one table.
enum class SmtpErrorNumber : qint32 {
    BadPort = 1,             ///< the port is no number from 1 to 65535
    NoServer = 2,            ///< Server is empty
    NotConnected = 3,        ///< Send without a session
    CannotConnect = 4,       ///< no such host, connection refused, network failure
    ServerRefuses = 5,       ///< a negative reply to the connection, EHLO or HELO
    Closed = 6,              ///< the server closed the connection
    TimedOut = 7,            ///< the server was silent for too long
    Unreadable = 8,          ///< what the server said is no SMTP reply
    NotTaken = 9,            ///< twice no answer to a message; it was certainly not accepted
    InDoubt = 10,            ///< the message was transferred, whether it was accepted is unknown
    CannotEncrypt = 11,      ///< encryption did not come about
    CertificateRefused = 12, ///< the server's certificate does not verify
    NoEncryption = 13, ///< the server does not offer the encryption it once did, or a login needs
    LoginFailed = 14,  ///< the server accepts no login, or none is known
};
