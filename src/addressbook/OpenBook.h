#pragma once

#include "addressbook/Contact.h"
#include "base/CodePage.h"
#include "base/Files.h"

#include <QCoreApplication>

#include <optional>

/// The book that is open: its contacts, and what is known of its file. A book that was not read to
/// its end is never written, and one that another program has changed is not written over.
class OpenBook
{
    Q_DECLARE_TR_FUNCTIONS(OpenBook)

public:
    OpenBook(const CodePage &codePage, const QString &programFolder);

    [[nodiscard]] const ContactTable &contactTable() const { return m_contactTable; }
    /// Whether it may be changed: it was read to its end.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

    /// Forgets the book: none is open.
    void close();
    /// Reads the book, absolute or relative to the program's folder, in the place of the one that
    /// was open. One that is not there is empty. After an error the contacts before it are there.
    [[nodiscard]] tl::expected<void, FileError> LoadBookFile(const QString &currentBookFile);
    /// Replaces the book's file. When another program has changed it meanwhile, or it cannot be
    /// read any more, what was changed here is saved beside it, and the path of that file returned;
    /// else an empty text.
    [[nodiscard]] tl::expected<QString, FileError> SaveBookFile();

    /// The last resort: what was changed goes into that folder, under a free name.
    void saveInto(const QString &folder) const;

    void append(const Contact &contact);
    /// Rows are counted from 1.
    void replace(int row, const Contact &contact);
    /// The rows ascending.
    void remove(const std::vector<int> &rows);

private:
    tl::expected<QString, FileError> write();

    const CodePage &m_codePage;
    QString m_programFolder;
    QString m_path;
    ContactTable m_contactTable;
    std::optional<QByteArray> m_onDisk; ///< as last read or written; nothing: there is no file
    bool m_isWhole = false;
    bool m_isChanged = false; ///< since it was read or written
};
