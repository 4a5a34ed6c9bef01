#include "account/AccountValues.h"

#include "base/Numbers.h"
#include "smtp/ServerReport.h"

#include <algorithm>

namespace {

QStringList words(const QString &text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

template <QString ServerAccount::*Member>
QString textOf(const ServerAccount &account)
{
    return account.*Member;
}

// One line: what it becomes part of, a command or a protocol, has nothing else.
template <QString ServerAccount::*Member>
bool setTextOf(ServerAccount &account, const QString &text)
{
    if (std::ranges::any_of(text, [](QChar c) { return c.category() == QChar::Other_Control; }))
        return false;
    account.*Member = text;
    return true;
}

template <bool ServerAccount::*Member>
QString choiceOf(const ServerAccount &account)
{
    return QString(account.*Member ? u'1' : u'0');
}

template <bool ServerAccount::*Member>
bool setChoiceOf(ServerAccount &account, const QString &text)
{
    const auto number = wholeNumber(text, 0, 1);
    if (number)
        account.*Member = *number == 1;
    return number.has_value();
}

QString certificatesOf(const ServerAccount &account)
{
    QStringList all;
    for (const QByteArray &fingerprint : account.trustedCertificates)
        all.append(fingerprintText(fingerprint));
    return all.join(u' ');
}

bool setCertificatesOf(ServerAccount &account, const QString &text)
{
    QList<QByteArray> all;
    bool makesSense = true;
    for (const QString &word : words(text)) {
        const QByteArray fingerprint = fingerprintOf(word);
        makesSense = makesSense && !fingerprint.isEmpty();
        if (!fingerprint.isEmpty() && !all.contains(fingerprint))
            all.append(fingerprint);
    }
    account.trustedCertificates = all;
    return makesSense;
}

QString portsOf(const ServerAccount &account)
{
    QStringList all;
    for (const quint16 port : account.startTlsPorts)
        all.append(QString::number(port));
    return all.join(u' ');
}

bool setPortsOf(ServerAccount &account, const QString &text)
{
    QList<quint16> all;
    bool makesSense = true;
    for (const QString &word : words(text)) {
        const quint16 port = toNumber<quint16>(word).value_or(0);
        makesSense = makesSense && port != 0;
        if (port != 0 && !all.contains(port))
            all.append(port);
    }
    account.startTlsPorts = all;
    return makesSense;
}

template <QString ServerAccount::*Member>
constexpr AccountValue textValue(const char *name)
{
    return {name, ValueKind::Text, textOf<Member>, setTextOf<Member>};
}

template <bool ServerAccount::*Member>
constexpr AccountValue choiceValue(const char *name)
{
    return {name, ValueKind::Integer, choiceOf<Member>, setChoiceOf<Member>};
}

const AccountValue *find(QStringView name)
{
    const auto *const found = std::ranges::find_if(
        AccountValues, [name](const AccountValue &v) { return name == QLatin1String(v.name); });
    return found == AccountValues.end() ? nullptr : found;
}

} // namespace

const std::array<AccountValue, 7> AccountValues{{
    textValue<&ServerAccount::user>("User"),
    textValue<&ServerAccount::tokenCommand>("TokenCommand"),
    choiceValue<&ServerAccount::usePipelining>("Pipelining"),
    choiceValue<&ServerAccount::useChunking>("Chunking"),
    choiceValue<&ServerAccount::writeTrace>("Trace"),
    {"TrustedCertificates", ValueKind::Text, certificatesOf, setCertificatesOf},
    {"StartTls", ValueKind::Text, portsOf, setPortsOf},
}};

QStringList accountValueNames()
{
    QStringList names;
    for (const AccountValue &value : AccountValues)
        names.append(QString::fromLatin1(value.name));
    return names;
}

std::optional<QString> accountValue(const ServerAccount &account, QStringView name)
{
    const AccountValue *const value = find(name);
    return value == nullptr ? std::nullopt : std::optional(value->text(account));
}

bool setAccountValue(ServerAccount &account, QStringView name, const QString &text)
{
    const AccountValue *const value = find(name);
    ServerAccount changed = account;
    if (value == nullptr || !value->setText(changed, text))
        return false;
    account = changed;
    return true;
}
