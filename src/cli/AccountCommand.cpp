#include "cli/AccountCommand.h"

#include "account/AccountValues.h"

ExitCode account(const AccountOptions &options, const CliSurroundings &from)
{
    ServerAccount account = from.accounts.account(options.host);
    if (!options.name) {
        for (const AccountValue &value : AccountValues)
            from.output.result(QString::fromLatin1(value.name) + u'=' + value.text(account));
        return ExitCode::Success;
    }
    const auto present = accountValue(account, *options.name);
    if (!present) {
        from.output.message(QStringLiteral("There is no value \"%1\"; there are: %2.")
                                .arg(*options.name, accountValueNames().join(QLatin1String(", "))));
        return ExitCode::Refused;
    }
    if (!options.value) {
        from.output.result(*present);
        return ExitCode::Success;
    }
    if (!setAccountValue(account, *options.name, *options.value) ||
        !from.accounts.setAccount(options.host, account)) {
        from.output.message(
            QStringLiteral("\"%1\" cannot be set to \"%2\".").arg(*options.name, *options.value));
        return ExitCode::Refused;
    }
    return ExitCode::Success;
}
