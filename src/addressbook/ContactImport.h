#pragma once

#include "addressbook/Contact.h"
#include "base/CodePage.h"

#include <QByteArray>
#include <QStringList>

/// What a file of another program gave for a book.
struct ImportedContacts
{
    /// Each has a name or a company, its display name, and an address that is valid and that a book
    /// file keeps. No field holds what a book file would not give back.
    ContactTable contacts;
    /// "name - address" of each that has no such address, in the file's order. Several addresses of
    /// one card are joined by ", ".
    QStringList leftOut;
    /// How many pieces of information there was no column for.
    int fieldsLeftOut = 0;
};

/// Reads vCards (RFC 2426, RFC 6350, and the older 2.1 that telephones write) when the file begins
/// as one, else lines of fields separated by ";" in the order of a book file.
[[nodiscard]] ImportedContacts importContacts(const QByteArray &content, const CodePage &codePage);
