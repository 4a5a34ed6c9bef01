#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>

/// The settings file on the disk: the cases of every store, and what only a file can suffer.
class TestRegFileStore : public QObject
{
    Q_OBJECT

public:
    /// What this program does when a test starts it a second time; nothing for any other arguments.
    static bool runAsSecondProgram(const QStringList &arguments);

private Q_SLOTS:
    void init();

    void everyStore_data();
    void everyStore();

    void defaultFileIsBelowTheConfigurationFolder();
    void relativeConfigurationFolderIsIgnored();
    void foldersOfTheFileAreMade();
    void newFileIsItsOwnersAlone();
    void permissionsOfTheFileStay();
    void symbolicLinksAreFollowed();
    void danglingLinkMakesTheFileItNames();
    void damagedLinesAreNeverLost();
    void fileThatCannotBeReadIsNeverWrittenOver_data();
    void fileThatCannotBeReadIsNeverWrittenOver();
    void fullDiskLeavesTheOldFile();
    void restOfAChangeThatDiedIsNoHindrance();
    void pathThatCannotBeAKeyIsRefused();
    void nameWithControlCharactersIsRefused();
    void twoThreadsAtOnceLoseNothing();
    void twoProgramsAtOnceLoseNothing();
    void readerNeverSeesHalfAFile();
    void changeByAnotherProgramEndsTheWait();
    void changeWithAnEditorEndsTheWait();
    void removingTheKeyEndsTheWait();

private:
    [[nodiscard]] QByteArray content() const;
    void setContent(const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::filesystem::path m_file;
};
