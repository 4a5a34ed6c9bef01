#pragma once

#include "addressbook/IndexText.h"
#include "base/CodePage.h"
#include "base/Files.h"

#include <QCoreApplication>
#include <QString>

#include <tl/expected.hpp>

/// The file "rubrica.ini" in the program's folder: two lines a book, name and file, and no sections
/// despite its suffix. The first book is the standard book, which is never deleted.
class BookIndex
{
    Q_DECLARE_TR_FUNCTIONS(BookIndex)

public:
    BookIndex(const CodePage &codePage, const QString &programFolder);

    /// The books in their order. An index that is not there is made, with an empty standard book;
    /// an odd last line is a book without a file.
    [[nodiscard]] tl::expected<std::vector<AddressBook>, FileError> LoadRubricheList() const;
    /// What a window says when that failed.
    [[nodiscard]] static QString troubleOf(const FileError &error);
    /// Replaces the index as a whole.
    [[nodiscard]] tl::expected<void, FileError>
    SaveRubricheList(const std::vector<AddressBook> &books) const;
    /// Puts a book at the end; what stands before it stays byte for byte wherever it can. A file
    /// that is not there is made, empty; one that is there is kept, with its contacts.
    [[nodiscard]] tl::expected<void, FileError> append(const AddressBook &book) const;

private:
    [[nodiscard]] tl::expected<void, FileError> makeFirst() const;
    [[nodiscard]] tl::expected<void, FileError> makeFileOf(const AddressBook &book) const;

    const CodePage &m_codePage;
    QString m_programFolder;
    QString m_path;
};
