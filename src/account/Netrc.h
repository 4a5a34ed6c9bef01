#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <tl/expected.hpp>

#include <optional>

/// One entry of a netrc file.
struct NetrcEntry
{
    std::optional<QString> machine; ///< nothing: the entry for all hosts
    QString login;
    QString password;

    bool operator==(const NetrcEntry &) const = default;
};

/// The entries of such a file: "machine", "default", "login", "password", "account" and "macdef",
/// as GNU inetutils and curl document them. A token may stand in double quotes, with a backslash
/// before a quote or a backslash, and \n, \r, \t; a line that begins with "#" is a comment. What
/// follows a word that is none of these is not read.
[[nodiscard]] QList<NetrcEntry> netrcEntries(const QString &content);

/// The first entry with a login and a password for the host, in whatever case; for this user, when
/// one is given.
[[nodiscard]] std::optional<NetrcEntry> netrcEntryFor(const QList<NetrcEntry> &entries,
                                                      const QString &host, const QString &user);

/// The entries of the file; none when it is not there. The error says in plain words why a file is
/// not used; one that others can read never is.
[[nodiscard]] tl::expected<QList<NetrcEntry>, QString> readNetrc(const QString &path);
