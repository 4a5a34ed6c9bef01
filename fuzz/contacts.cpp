// Contacts of other programs: whatever the file, what is imported survives in a book.

#include "Fuzzing.h"
#include "addressbook/BookText.h"
#include "addressbook/ContactCheck.h"
#include "addressbook/ContactImport.h"

namespace {

bool isOneLine(const QString &text)
{
    return !text.contains(u'\n') && !text.contains(u'\r');
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const ImportedContacts imported = importContacts(bytes.toByteArray(), codePage);
    for (const Contact &contact : imported.contacts) {
        mustHold(!refusalOf(contact, Language::English), "the editor would take a contact");
        for (const ContactColumn column : ColumnsInFile)
            mustHold(column == ContactColumn::Notes || isOneLine(contact[column]),
                     "no field but the notes has several lines");
        mustHold(!contact[ContactColumn::DisplayName].isEmpty(), "a contact has a name");
    }
    const BookText again = readBookText(bookTextOf(imported.contacts));
    mustHold(again.brokenLine == 0, "no line is broken");
    mustHold(again.contactTable == imported.contacts, "contacts come back from a book");
    for (const QString &leftOut : imported.leftOut)
        mustHold(isOneLine(leftOut) && leftOut.contains(QLatin1String(" - ")),
                 "who is left out is named on one line");
}
