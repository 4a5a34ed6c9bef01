#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// A file that only grows.
class TestAppendedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void whatIsAppendedStandsBehindWhatWasThere();
    void aFileThatIsMissingIsNotMade();
    void aLineThatFindsNoRoomLeavesNothingBehind();
    void theDiskJobOutlivesTheFile();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};
