#pragma once

#include <QString>

#include <array>
#include <vector>

/// The columns of contactTable, from 1 on as everybody counts them.
enum class ContactColumn {
    DisplayName = 1, ///< what lists show
    Name,
    Company,
    Email,
    Address,
    City,
    State,
    PostCode,
    Country,
    Telephone,
    Fax,
    Mobile,
    Notes, ///< the only one that may have several lines, ended by CR LF
};

/// In the order of a book file, where the address comes second.
constexpr std::array ColumnsInFile{
    ContactColumn::DisplayName, ContactColumn::Email,    ContactColumn::Name,
    ContactColumn::Company,     ContactColumn::Address,  ContactColumn::City,
    ContactColumn::State,       ContactColumn::PostCode, ContactColumn::Country,
    ContactColumn::Telephone,   ContactColumn::Fax,      ContactColumn::Mobile,
    ContactColumn::Notes,
};

/// One contact of an address book: a row of contactTable.
class Contact
{
public:
    static constexpr int Columns = static_cast<int>(ColumnsInFile.size());

    [[nodiscard]] const QString &operator[](ContactColumn column) const
    {
        return m_texts[place(column)];
    }
    [[nodiscard]] QString &operator[](ContactColumn column) { return m_texts[place(column)]; }

    bool operator==(const Contact &) const = default;

private:
    [[nodiscard]] static std::size_t place(ContactColumn column)
    {
        return static_cast<std::size_t>(column) - 1;
    }

    std::array<QString, Columns> m_texts;
};

/// The contacts of a book in the order of its file.
using ContactTable = std::vector<Contact>;

/// What a contact of that name and company is shown as: the one that is there, or both.
[[nodiscard]] QString DisplayName(const QString &name, const QString &company);
