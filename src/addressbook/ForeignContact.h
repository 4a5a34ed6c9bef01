#pragma once

#include "addressbook/Contact.h"

#include <QStringList>

/// A contact as another program wrote it, before it is made fit for a book.
struct ForeignContact
{
    /// All but the address. Texts may hold anything, and be empty.
    Contact fields;
    /// Each is to be a contact of its own. Never empty: who has no address has one empty text.
    QStringList addresses;
    /// How many pieces of information there was no column for.
    int fieldsLeftOut = 0;
};
