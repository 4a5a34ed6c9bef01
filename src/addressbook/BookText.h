#pragma once

#include "addressbook/Contact.h"

#include <QStringView>

/// What the text of a book file holds.
struct BookText
{
    ContactTable contactTable;
    /// The first line without a ";", counted from 1, which ended the reading; 0: there is none.
    int brokenLine = 0;
};

/// Reads the lines of a book: 13 fields, each followed by ";", without any quoting. A line may have
/// fewer; of one with more the rest belongs to the notes. What follows "#" in the address is a
/// comment, as in a recipients file. Line ends within the fields from the third on stand as "\n\r",
/// four characters.
[[nodiscard]] BookText readBookText(QStringView text);

/// The lines of a book with these contacts. A ";" inside a field is not guarded: in the notes it
/// comes back, in any other field it moves what follows one place on.
[[nodiscard]] QString bookTextOf(const ContactTable &contactTable);
