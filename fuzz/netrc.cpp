// Files with logins: any bytes give entries that can be looked up, and nobody is given the login of
// another host or user.

#include "account/Netrc.h"
#include "Fuzzing.h"

namespace {

void checkLookUp(const QList<NetrcEntry> &entries, const QString &host, const QString &user)
{
    const auto found = netrcEntryFor(entries, host, user);
    if (!found)
        return;
    mustHold(entries.contains(*found), "what is found is an entry of the file");
    mustHold(!found->machine || found->machine->compare(host, Qt::CaseInsensitive) == 0,
             "the entry is for that host, or for all");
    mustHold(user.isEmpty() || found->login == user, "the entry is that user's");
    mustHold(!found->login.isEmpty() && !found->password.isEmpty(), "the entry is a login");
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    const QList<NetrcEntry> entries = netrcEntries(QString::fromUtf8(bytes));
    checkLookUp(entries, QStringLiteral("mail.example.org"), {});
    for (const NetrcEntry &entry : entries) {
        const QString host = entry.machine.value_or(QStringLiteral("any.example")).toUpper();
        checkLookUp(entries, host, {});
        checkLookUp(entries, host, entry.login);
        if (!entry.login.isEmpty() && !entry.password.isEmpty())
            mustHold(netrcEntryFor(entries, entry.machine.value_or(host), entry.login).has_value(),
                     "who has a login in the file finds one");
    }
}
