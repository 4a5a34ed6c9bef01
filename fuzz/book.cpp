// Address books and their index: what was written once is written the same ever after.

#include "Fuzzing.h"
#include "addressbook/BookText.h"
#include "addressbook/IndexText.h"
#include "base/CodePage.h"

namespace {

QString savedAgain(const QString &text)
{
    return bookTextOf(readBookText(text).contactTable);
}

void fuzzIndex(const QString &text)
{
    const std::vector<AddressBook> books = readIndexText(text);
    mustHold(readIndexText(indexTextOf(books)) == books, "an index reads back");
    const AddressBook added{QStringLiteral("Soci"), QStringLiteral("soci.rub")};
    std::vector<AddressBook> expected = books;
    expected.push_back(added);
    mustHold(readIndexText(text + additionTo(text, added)) == expected,
             "a further book stands at the end, and the others are as they were");
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const QString text = codePage.decode(bytes);
    fuzzIndex(text);
    const QString second = savedAgain(savedAgain(text));
    mustHold(savedAgain(second) == second, "a book is written the same from the second time on");
    mustHold(codePage.decode(codePage.encode(second)) == second, "text comes back");
}
