#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// One book of the index.
struct AddressBook
{
    QString name;
    QString file; ///< absolute, or relative to the program's folder; the key of the book

    bool operator==(const AddressBook &) const = default;
};

/// Reads the index: two lines a book, name and file. An odd last line is a book without a file.
[[nodiscard]] std::vector<AddressBook> readIndexText(QStringView text);

[[nodiscard]] QString indexTextOf(const std::vector<AddressBook> &books);

/// What is to be put behind that index for a further book at its end.
[[nodiscard]] QString additionTo(QStringView indexText, const AddressBook &book);
