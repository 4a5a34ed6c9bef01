#pragma once

#include "cli/Output.h"
#include "smtp/ServerAccounts.h"
#include "smtp/Smtp.h"

/// How a certificate that was refused can be checked, and trusted besides those that already are:
/// lines for people, the last of them the command to type.
[[nodiscard]] QString adviceOnCertificate(const ServerCertificate &certificate,
                                          QList<QByteArray> trusted);

/// Says so whenever a session of this client ends for such a certificate, as long as all three
/// live.
void adviseOnRefusedCertificates(const Smtp &smtp, const ServerAccounts &accounts, Output &output);
