#pragma once

#include <QtGlobal>

/// The numbers of SmtpError.
enum class SmtpErrorNumber : qint32 {
    BadPort = 1, ///< the port is no number from 1 to 65535
};
