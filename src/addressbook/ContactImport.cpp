#include "addressbook/ContactImport.h"

#include "addressbook/SeparatedLines.h"
#include "addressbook/VCard.h"
#include "base/Lines.h"
#include "base/modMain.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

/// Files that begin with a byte-order mark are made UTF-8 without one.
QByteArray withoutByteOrderMark(const QByteArray &content)
{
    const auto encoding = QStringConverter::encodingForData(content);
    if (!encoding)
        return content;
    return QString(QStringDecoder(*encoding)(content)).toUtf8();
}

QString withCrLf(QStringView text)
{
    QString lines;
    lines.reserve(text.size());
    while (!text.isEmpty()) {
        const int end = lineEndLength(text);
        if (end > 0)
            lines += QLatin1String("\r\n");
        else
            lines += text.front();
        text = text.sliced(std::max(end, 1));
    }
    return lines;
}

/// The text as a book file gives it back: it separates fields by ";", and has four characters for
/// the line ends that it knows in every column but the first two.
QString fitForBook(ContactColumn column, QString text)
{
    if (column != ContactColumn::DisplayName)
        text.replace(QLatin1String("\\n\\r"), QLatin1String("\n"));
    if (column == ContactColumn::Notes)
        return withCrLf(text);
    return oneLine(text).replace(u';', u',').trimmed();
}

/// Whether a book file keeps the address (it would cut it at "#", and part it at ";"), and whether
/// it is one: what stands in angle brackets beside a name is none yet.
bool isKeptByBook(const QString &address)
{
    return IsValidEmail(address) && std::none_of(address.begin(), address.end(), [](QChar c) {
               return QStringView(u"#;<>\"").contains(c) || c.isSpace() ||
                      c.category() == QChar::Other_Control;
           });
}

/// With a name or a company, and with the display name that lists show.
Contact named(Contact contact)
{
    QString &name = contact[ContactColumn::Name];
    const QString &company = contact[ContactColumn::Company];
    QString &shown = contact[ContactColumn::DisplayName];
    if (name.isEmpty() && company.isEmpty())
        name = fitForBook(ContactColumn::Name, shown);
    if (name.isEmpty() && company.isEmpty())
        name = contact[ContactColumn::Email];
    if (shown.isEmpty())
        shown = DisplayName(name, company);
    return contact;
}

void add(const ForeignContact &foreign, ImportedContacts &all)
{
    all.fieldsLeftOut += foreign.fieldsLeftOut;
    Contact fields;
    for (int i = 1; i <= Contact::Columns; ++i) {
        const auto column = static_cast<ContactColumn>(i);
        fields[column] = fitForBook(column, foreign.fields[column]);
    }
    fields = named(fields);
    QStringList invalid;
    for (const QString &text : foreign.addresses) {
        const QString address = oneLine(text).trimmed();
        if (!isKeptByBook(address)) {
            invalid += address;
            continue;
        }
        Contact contact = fields;
        contact[ContactColumn::Email] = address;
        all.contacts.push_back(named(contact));
    }
    if (invalid.isEmpty())
        return;
    const QString &name = fields[ContactColumn::Name].isEmpty() ? fields[ContactColumn::Company]
                                                                : fields[ContactColumn::Name];
    all.leftOut += name + QLatin1String(" - ") + invalid.join(QLatin1String(", "));
}

} // namespace

ImportedContacts importContacts(const QByteArray &content, const CodePage &codePage)
{
    const QByteArray bytes = withoutByteOrderMark(content);
    ImportedContacts imported;
    for (const ForeignContact &contact :
         isVCard(bytes) ? readVCards(bytes, codePage) : readSeparatedLines(codePage.decode(bytes)))
        add(contact, imported);
    return imported;
}
