#include "addressbook/BookText.h"

#include "base/Lines.h"

namespace {

constexpr std::size_t FirstWithLineEnds = 2;
const QString LineEnd = QStringLiteral("\r\n");
const QString LineEndInFile = QStringLiteral("\\n\\r");

Contact contactOf(QStringView line)
{
    Contact contact;
    std::size_t pieces = 0;
    for (bool more = true; more && pieces < ColumnsInFile.size(); ++pieces) {
        const bool takesTheRest = pieces + 1 == ColumnsInFile.size();
        const qsizetype end = takesTheRest ? -1 : line.indexOf(u';');
        more = end >= 0;
        QString &text = contact[ColumnsInFile[pieces]];
        text = (more ? line.first(end) : line).toString();
        if (pieces >= FirstWithLineEnds)
            text.replace(LineEndInFile, LineEnd);
        if (more)
            line = line.sliced(end + 1);
    }
    QString &address = contact[ContactColumn::Email];
    if (const qsizetype comment = address.indexOf(u'#'); comment >= 0)
        address.truncate(comment);
    // A name and an address alone, as recipients files have them.
    if (pieces == 2)
        contact[ContactColumn::Name] = contact[ContactColumn::DisplayName];
    // The ";" that ends a full line.
    contact[ContactColumn::Notes].chop(1);
    return contact;
}

// Any line end, also half of one: it would tear the line apart.
QString onOneLine(QString text)
{
    text.replace(LineEnd, LineEndInFile);
    return text.replace(u'\r', LineEndInFile).replace(u'\n', LineEndInFile);
}

} // namespace

BookText readBookText(QStringView text)
{
    BookText book;
    LineReader lines(text);
    while (const auto line = lines.next()) {
        if (!line->contains(u';')) {
            book.brokenLine = static_cast<int>(book.contactTable.size()) + 1;
            break;
        }
        book.contactTable.push_back(contactOf(*line));
    }
    return book;
}

QString bookTextOf(const ContactTable &contactTable)
{
    QString text;
    for (const Contact &contact : contactTable) {
        for (const ContactColumn column : ColumnsInFile)
            text += onOneLine(contact[column]) + u';';
        text += LineEnd;
    }
    return text;
}
