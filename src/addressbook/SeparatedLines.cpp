#include "addressbook/SeparatedLines.h"

#include "base/Lines.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr QChar Separator = u';';

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

/// Walks a text field by field. What begins with a quote but is no quoted field is taken as it is:
/// books are written without quotes, and a name may begin with one.
class FieldReader
{
public:
    explicit FieldReader(QStringView text) : m_rest(text) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    /// The fields of the next line; never more than a contact has.
    [[nodiscard]] QStringList nextLine();

private:
    [[nodiscard]] QString nextField();
    [[nodiscard]] QString nextNotes();
    [[nodiscard]] std::optional<QStringView> quotedText() const;
    [[nodiscard]] bool endsLine(qsizetype at) const;
    [[nodiscard]] bool endsField(qsizetype at) const;
    QStringView take(qsizetype length);

    QStringView m_rest;
};

QStringView FieldReader::take(qsizetype length)
{
    return std::exchange(m_rest, m_rest.sliced(length)).first(length);
}

bool FieldReader::endsLine(qsizetype at) const
{
    return at == m_rest.size() || isLineEnd(m_rest[at]);
}

bool FieldReader::endsField(qsizetype at) const
{
    return endsLine(at) || m_rest[at] == Separator;
}

/// What stands between the quote at the start and its end, the quotes inside still doubled.
std::optional<QStringView> FieldReader::quotedText() const
{
    if (!m_rest.startsWith(u'"'))
        return std::nullopt;
    qsizetype end = m_rest.indexOf(u'"', 1);
    while (end >= 0 && m_rest.sliced(end).startsWith(u"\"\""))
        end = m_rest.indexOf(u'"', end + 2);
    if (end < 0)
        return std::nullopt;
    return m_rest.first(end).sliced(1);
}

QString withSingleQuotes(QStringView text)
{
    return text.toString().replace(QLatin1String("\"\""), QLatin1String("\""));
}

QString FieldReader::nextField()
{
    if (const auto text = quotedText(); text && endsField(text->size() + 2)) {
        take(text->size() + 2);
        return withSingleQuotes(*text);
    }
    const auto end = std::find_if(m_rest.begin(), m_rest.end(),
                                  [](QChar c) { return c == Separator || isLineEnd(c); });
    return take(end - m_rest.begin()).toString();
}

/// The rest of the line but the separator with which a book ends it.
QString FieldReader::nextNotes()
{
    if (const auto text = quotedText()) {
        qsizetype length = text->size() + 2;
        if (m_rest.sliced(length).startsWith(Separator))
            ++length;
        if (endsLine(length)) {
            take(length);
            return withSingleQuotes(*text);
        }
    }
    QStringView notes =
        take(std::find_if(m_rest.begin(), m_rest.end(), isLineEnd) - m_rest.begin());
    if (notes.endsWith(Separator))
        notes.chop(1);
    return notes.toString();
}

QStringList FieldReader::nextLine()
{
    QStringList fields;
    while (fields.size() + 1 < Contact::Columns) {
        fields += nextField();
        if (!m_rest.startsWith(Separator))
            break;
        take(1);
    }
    if (fields.size() + 1 == Contact::Columns)
        fields += nextNotes();
    take(lineEndLength(m_rest));
    return fields;
}

/// Spreadsheets write their empty rows too, and may have more columns than a contact.
bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.isSpace() || c == Separator; });
}

} // namespace

std::vector<ForeignContact> readSeparatedLines(QStringView text)
{
    std::vector<ForeignContact> contacts;
    FieldReader reader(text);
    while (!reader.atEnd()) {
        const QStringList fields = reader.nextLine();
        if (std::all_of(fields.begin(), fields.end(), isBlank))
            continue;
        ForeignContact contact;
        for (qsizetype i = 0; i < fields.size(); ++i)
            contact.fields[ColumnsInFile[i]] = fields[i];
        QString address = std::exchange(contact.fields[ContactColumn::Email], {});
        // A comment, as in the files of books and of recipients.
        if (const qsizetype comment = address.indexOf(u'#'); comment >= 0)
            address.truncate(comment);
        contact.addresses.append(address);
        contacts.push_back(std::move(contact));
    }
    return contacts;
}
