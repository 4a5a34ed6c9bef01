// Files with logins: any bytes give entries that can be looked up.

#include "account/Netrc.h"
#include "Fuzzing.h"

void fuzz(QByteArrayView bytes)
{
    const QList<NetrcEntry> entries = netrcEntries(QString::fromUtf8(bytes));
    const auto found = netrcEntryFor(entries, QStringLiteral("mail.example.org"), {});
    mustHold(!found || entries.contains(*found), "what is found is an entry of the file");
}
