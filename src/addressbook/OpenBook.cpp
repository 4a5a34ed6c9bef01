#include "addressbook/OpenBook.h"

#include "addressbook/BookNames.h"
#include "addressbook/BookText.h"
#include "base/modMain.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// What the file holds now; nothing when there is none.
tl::expected<std::optional<QByteArray>, FileError> contentOf(const QString &path)
{
    if (!QFileInfo::exists(systemPath(path)))
        return std::nullopt;
    return readTextFile(path).map([](const QByteArray &content) { return std::optional(content); });
}

QString freePathBeside(const QString &path)
{
    const QString name = fileNameOf(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString suffix = dot < 0 ? QString() : name.sliced(dot);
    QString folder = FolderOf(path);
    folder.chop(1);
    return freePath(folder, name.chopped(suffix.size()), suffix);
}

} // namespace

OpenBook::OpenBook(const CodePage &codePage, const QString &programFolder)
    : m_codePage(codePage), m_programFolder(programFolder)
{}

void OpenBook::close()
{
    m_path.clear();
    m_contactTable.clear();
    m_onDisk.reset();
    m_isWhole = false;
    m_isChanged = false;
}

tl::expected<void, FileError> OpenBook::LoadBookFile(const QString &currentBookFile)
{
    close();
    m_path = ResolveProgramPath(currentBookFile, m_programFolder);
    auto content = contentOf(m_path);
    if (!content)
        return tl::unexpected(content.error());
    m_onDisk = *std::move(content);
    BookText book = readBookText(m_codePage.decode(m_onDisk.value_or(QByteArray())));
    m_contactTable = std::move(book.contactTable);
    m_isWhole = book.brokenLine == 0;
    if (!m_isWhole)
        return tl::unexpected(FileError{m_path, tr("line %1 has no \";\"").arg(book.brokenLine)});
    return {};
}

tl::expected<QString, FileError> OpenBook::SaveBookFile()
{
    if (!m_isWhole)
        return QString();
    auto saved = write();
    // Nothing is lost when a book as it was read, only laid out anew, cannot be written.
    if (!saved && !m_isChanged)
        return QString();
    if (saved)
        m_isChanged = false;
    return saved;
}

tl::expected<QString, FileError> OpenBook::write()
{
    const QByteArray content = m_codePage.encode(bookTextOf(m_contactTable));
    const auto onDisk = contentOf(m_path);
    const bool isOurs = onDisk && (!*onDisk || *onDisk == m_onDisk || *onDisk == content);
    if (!isOurs && !m_isChanged)
        return QString();
    const QString beside = isOurs ? QString() : freePathBeside(m_path);
    if (!isOurs || *onDisk != content) {
        const QString &path = beside.isEmpty() ? m_path : beside;
        if (const auto written = replaceWholeFile(path, content); !written)
            return tl::unexpected(written.error());
    }
    if (beside.isEmpty())
        m_onDisk = content;
    return beside;
}

void OpenBook::saveInto(const QString &folder) const
{
    if (!m_isChanged)
        return;
    const QString path = freePathBeside(joinPath(folder, fileNameOf(m_path)));
    static_cast<void>(replaceWholeFile(path, m_codePage.encode(bookTextOf(m_contactTable))));
}

void OpenBook::append(const Contact &contact)
{
    m_contactTable.push_back(contact);
    m_isChanged = true;
}

void OpenBook::replace(int row, const Contact &contact)
{
    m_contactTable[static_cast<std::size_t>(row - 1)] = contact;
    m_isChanged = true;
}

void OpenBook::remove(const std::vector<int> &rows)
{
    int row = 0;
    std::erase_if(m_contactTable, [&](const Contact &) {
        return std::binary_search(rows.begin(), rows.end(), ++row);
    });
    m_isChanged = true;
}
