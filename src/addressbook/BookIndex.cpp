#include "addressbook/BookIndex.h"

#include "base/Lines.h"
#include "base/modMain.h"

#include <QFileInfo>

BookIndex::BookIndex(const CodePage &codePage, const QString &programFolder)
    : m_codePage(codePage),
      m_programFolder(programFolder),
      m_path(joinPath(programFolder, QStringLiteral("rubrica.ini")))
{}

tl::expected<std::vector<AddressBook>, FileError> BookIndex::LoadRubricheList() const
{
    if (!QFileInfo::exists(systemPath(m_path))) {
        if (const auto made = makeFirst(); !made)
            return tl::unexpected(made.error());
    }
    const auto read = [this](const QByteArray &content) {
        return readIndexText(m_codePage.decode(content));
    };
    return readTextFile(m_path).map(read);
}

QString BookIndex::troubleOf(const FileError &error)
{
    return tr("The list of the address books cannot be read: %1").arg(error.toText());
}

tl::expected<void, FileError> BookIndex::makeFirst() const
{
    const AddressBook standard{tr("Standard"), QStringLiteral("rubrica.rub")};
    if (const auto made = makeFileOf(standard); !made)
        return made;
    return SaveRubricheList({standard});
}

tl::expected<void, FileError> BookIndex::makeFileOf(const AddressBook &book) const
{
    const QString file = ResolveProgramPath(book.file, m_programFolder);
    if (QFileInfo::exists(systemPath(file)))
        return {};
    return replaceWholeFile(file, {});
}

tl::expected<void, FileError>
BookIndex::SaveRubricheList(const std::vector<AddressBook> &books) const
{
    return replaceWholeFile(m_path, m_codePage.encode(indexTextOf(books)));
}

tl::expected<void, FileError> BookIndex::append(const AddressBook &book) const
{
    if (oneLine(book.file) != book.file)
        return tl::unexpected(FileError{book.file, tr("its name has a line end")});
    const auto old = readTextFile(m_path);
    if (!old)
        return tl::unexpected(old.error());
    if (const auto made = makeFileOf(book); !made)
        return made;
    const QString text = m_codePage.decode(*old);
    const QString added = additionTo(text, book);
    // The old bytes and the new may not read as what they are when they are put together: the one
    // in the code page, the other in UTF-8.
    QByteArray content = *old + m_codePage.encode(added);
    if (m_codePage.decode(content) != text + added)
        content = m_codePage.encode(text + added);
    return replaceWholeFile(m_path, content);
}
