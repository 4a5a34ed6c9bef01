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
    /// Nothing is appended any more once something could not be written: behind a gap in the
    /// record nobody could rely on it. The lines that failed come with the next try.
    [[nodiscard]] tl::expected<void, FileError> append(const QByteArray &line);
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
    bool m_isSyncing = false;
    // Ticks of the oldest lines that are perhaps not on the disk: of those that the job under way
    // counts, and of those that wait for the next.
    std::optional<quint32> m_oldestUnderWay;
    std::optional<quint32> m_oldestWaiting;
    std::function<void()> m_whenCaughtUp;
};
