#include "addressbook/IndexText.h"

#include "base/Lines.h"

std::vector<AddressBook> readIndexText(QStringView text)
{
    std::vector<AddressBook> books;
    LineReader lines(text);
    while (const auto name = lines.next())
        books.push_back({name->toString(), lines.next().value_or(QStringView()).toString()});
    return books;
}

QString indexTextOf(const std::vector<AddressBook> &books)
{
    QString text;
    for (const AddressBook &book : books)
        text += book.name + QLatin1String("\r\n") + book.file + QLatin1String("\r\n");
    return text;
}

QString additionTo(QStringView indexText, const AddressBook &book)
{
    QString addition;
    if (!indexText.isEmpty() && !indexText.endsWith(u'\r') && !indexText.endsWith(u'\n'))
        addition += QLatin1String("\r\n");
    int lineCount = 0;
    for (LineReader lines(indexText); lines.next();)
        ++lineCount;
    // The empty file of a last book that has a name only, or the new name would become its file.
    if (lineCount % 2 != 0)
        addition += QLatin1String("\r\n");
    return addition + indexTextOf({book});
}
