#include "account/Accounts.h"

#include "account/AccountValues.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"

#include <QUrl>

namespace {

// Letters, digits, "-", "." and "_" stay, and nothing else can be part of a path.
std::string folderOf(const QString &host)
{
    return std::string(Settings::Folder) + "\\Servers\\" +
           QUrl::toPercentEncoding(host.toLower()).toStdString();
}

} // namespace

Accounts::Accounts(SettingsStore &store, const CodePage &codePage)
    : m_store(store), m_codePage(codePage)
{}

ServerAccount Accounts::account(const QString &host) const
{
    ServerAccount account;
    if (host.isEmpty())
        return account;
    IOReg reg(m_store);
    reg.Init(CurrentUserRoot, folderOf(host));
    for (const AccountValue &value : AccountValues) {
        QString text;
        if (value.kind == ValueKind::Integer) {
            std::int32_t number = value.text(account).toInt();
            reg.ReadInt(value.name, number);
            text = QString::number(number);
        } else {
            std::string bytes;
            reg.ReadStr(value.name, bytes);
            text = m_codePage.decode(bytes);
        }
        // The file may be edited by hand: what makes no sense in it counts as absent, the rest does
        // not.
        value.setText(account, text);
    }
    account.startTlsPorts += m_unwritten.value(host.toLower());
    return account;
}

bool Accounts::setAccount(const QString &host, const ServerAccount &account)
{
    if (host.isEmpty())
        return false;
    // Only what differs is written: another program may be changing the rest at this moment.
    const ServerAccount before = this->account(host);
    IOReg reg(m_store);
    bool isWritten = reg.Init(CurrentUserRoot, folderOf(host)) == StoreCode::Success;
    for (const AccountValue &value : AccountValues) {
        const QString text = value.text(account);
        if (!isWritten || text == value.text(before))
            continue;
        const auto code = value.kind == ValueKind::Integer
                              ? reg.WriteInt(value.name, text.toInt())
                              : reg.WriteStr(value.name, m_codePage.encode(text).toStdString());
        isWritten = code == StoreCode::Success;
    }
    return isWritten;
}

void Accounts::rememberStartTls(const ServerAddress &server)
{
    ServerAccount known = account(server.host);
    if (known.startTlsPorts.contains(server.port))
        return;
    known.startTlsPorts.append(server.port);
    // What cannot be kept is remembered for as long as the program runs.
    if (!setAccount(server.host, known))
        m_unwritten[server.host.toLower()].append(server.port);
}

bool Accounts::trust(const QString &host, const QByteArray &fingerprint)
{
    ServerAccount known = account(host);
    if (!known.trustedCertificates.contains(fingerprint))
        known.trustedCertificates.append(fingerprint);
    return setAccount(host, known);
}
