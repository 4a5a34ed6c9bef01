#pragma once

#include "settings/SettingsStore.h"
#include "smtp/ServerAccounts.h"

#include <QStringList>

#include <array>
#include <optional>

/// One value of an account: its name in the settings, and the text that people read and write.
struct AccountValue
{
    const char *name = nullptr;
    /// A text may be empty; an integer is 0 or 1.
    ValueKind kind = ValueKind::Text;
    QString (*text)(const ServerAccount &account) = nullptr;
    /// False when the text makes no sense; what does in a list is taken all the same.
    bool (*setText)(ServerAccount &account, const QString &text) = nullptr;
};

/// All of them, in the order in which they are listed.
extern const std::array<AccountValue, 7> AccountValues;

/// Their names: User, TokenCommand, Pipelining, Chunking, Trace (0 or 1), TrustedCertificates
/// (fingerprints separated by blanks) and StartTls (ports separated by blanks).
[[nodiscard]] QStringList accountValueNames();
/// The value of that name, spelled exactly; nothing when there is none.
[[nodiscard]] std::optional<QString> accountValue(const ServerAccount &account, QStringView name);
/// Sets it. False, and nothing is changed, for an unknown name and a text that makes no sense.
[[nodiscard]] bool setAccountValue(ServerAccount &account, QStringView name, const QString &text);
