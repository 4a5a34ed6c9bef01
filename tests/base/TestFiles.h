#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// Whole files: read, and replaced.
class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void fileIsReadAsItIs_data();
    void fileIsReadAsItIs();
    void aTextThatOnlyBeginsAsUtf8IsNotRead();
    void missingFileIsRefused();
    void folderIsRefused();
    void pipeIsRefused();
    void unreadableFileIsRefusedWithTheSystemsReason();
    void reasonsAreItalianInItalian();
    void errorIsOneLineOfPathAndReason();
    void relativeNameIsOpenedWithTheSystemsSeparator();
    void existingFileIsAFileAndNoFolder();

    void newFileIsWritten();
    void oldFileIsReplacedWhole();
    void fileInAMissingFolderIsNotWritten();
    void folderIsNotReplaced();
    void fullDiskKeepsTheOldFile_data();
    void fullDiskKeepsTheOldFile();
    void folderThatMayNotBeWrittenKeepsTheOldFile();
    void symbolicLinkStaysALink();
    void permissionsOfTheFileStay();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};
