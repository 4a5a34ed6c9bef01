#pragma once

#include "smtp/ServerReport.h"

#include <QSslCertificate>
#include <QSslError>

/// What people have to know about a certificate that was shown for a host. `problem` says what the
/// errors mean; the standing is left to the caller.
[[nodiscard]] ServerCertificate describe(const QSslCertificate &certificate,
                                         const QList<QSslError> &errors, const QString &host);
