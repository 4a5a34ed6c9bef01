#pragma once

#include "smtp/SmtpErrorNumber.h"

#include <QString>

/// Why a session ended or did not begin.
struct SessionFault
{
    SmtpErrorNumber number = SmtpErrorNumber::Closed;
    QString reason; ///< plain words without the server's name, such as "the connection was closed"
};
