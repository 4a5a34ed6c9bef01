#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// A link in a text: where it starts (0-based) and how long it is.
struct Link
{
    qsizetype start = 0;
    qsizetype length = 0;
};

/// The outcome of a search for a link.
struct LinkSearch
{
    std::optional<Link> link; ///< nothing when there is none
    bool unclosed = false;    ///< a link begins there and has no closing quote
};

/// The text in lower case, character by character, so that every place stays where it was.
[[nodiscard]] QString lowerCaseInPlace(QString text);

/// The first link whose "src=" stands at or after `from` in a lower-cased text. The link begins
/// behind the one character that follows "src=", whatever that is, and ends before the next double
/// quote.
[[nodiscard]] LinkSearch findLink(QStringView lowerText, qsizetype from);

/// Whether a link can name something below the folder it is joined to: it is not empty, does not
/// climb out through "..", and holds no NUL.
[[nodiscard]] bool staysBelow(QStringView link);

/// The existing file that a link names below a folder: exact letter case first, then any. "/" and
/// "\" both separate folders; "?" and "*" are letters. Nothing outside the folder and its
/// subfolders is ever found, through symbolic links neither. Empty when there is no such file.
[[nodiscard]] QString findLinkedFile(const QString &folder, QStringView link);
