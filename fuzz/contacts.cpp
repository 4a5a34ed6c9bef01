// Contacts of other programs: whatever the file, what is imported survives in a book.

#include "Fuzzing.h"
#include "addressbook/BookText.h"
#include "addressbook/ContactImport.h"
#include "base/modMain.h"

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const ImportedContacts imported = importContacts(bytes.toByteArray(), codePage);
    for (const Contact &contact : imported.contacts) {
        mustHold(IsValidEmail(contact[ContactColumn::Email]), "an address is valid");
        mustHold(!contact[ContactColumn::DisplayName].isEmpty(), "a contact has a name");
    }
    const BookText again = readBookText(bookTextOf(imported.contacts));
    mustHold(again.brokenLine == 0, "no line is broken");
    mustHold(again.contactTable == imported.contacts, "contacts come back from a book");
    mustHold(imported.fieldsLeftOut >= 0, "fields are counted");
}
