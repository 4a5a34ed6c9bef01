#pragma once

#include "base/Clock.h"
#include "journal/DiskSync.h"
#include "journal/RunLock.h"

#include <functional>
#include <memory>
#include <optional>

/// The file of one run. While it lives no other process takes it for a run that was left behind.
class JournalFile : public std::enable_shared_from_this<JournalFile>
{
public:
    /// A file that was left behind, or is to be written.
    JournalFile(const QString &path, std::shared_ptr<RunLock> lock, const Clock &clock,
                DiskSync &sync);

    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] const std::shared_ptr<RunLock> &lock() const { return m_lock; }

    /// Puts this content in the place of the file's, on the disk, and appends to it from now on.
    [[nodiscard]] tl::expected<void, FileError> begin(const QByteArray &content);
    /// Appends a line, behind those that found no room before. Nothing is appended any more once
    /// the disk has failed: behind a gap nobody could rely on the record.
    [[nodiscard]] tl::expected<void, FileError> append(const QByteArray &line);
    /// Appends a line that tells of something that has happened: when it finds no room it comes
    /// with the next one.
    void appendNowOrLater(const QByteArray &line);
    /// Whether everything appended has been on the disk for all but the last moment.
    [[nodiscard]] bool isCaughtUp() const;
    /// Called once when it has caught up, or when the disk has failed.
    void whenCaughtUp(std::function<void()> then) { m_whenCaughtUp = std::move(then); }
    void remove() const;

private:
    void noteUnsynced();
    void sync();
    void synced(const tl::expected<void, FileError> &result);

    QString m_path;
    std::shared_ptr<RunLock> m_lock;
    const Clock &m_clock;
    DiskSync &m_sync;
    std::optional<AppendedFile> m_file;
    QByteArray m_unwritten;
    std::optional<FileError> m_diskFault;
    int m_content = 0; ///< changes with each beginning: what a job for an earlier one says is past
    bool m_isSyncing = false;
    // Ticks of the oldest lines that are perhaps not on the disk: of those that the job under way
    // counts, and of those that wait for the next.
    std::optional<quint32> m_oldestUnderWay;
    std::optional<quint32> m_oldestWaiting;
    std::function<void()> m_whenCaughtUp;
};
