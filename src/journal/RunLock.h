#pragma once

#include <QLockFile>

#include <tl/expected.hpp>

#include <memory>

/// Why a lock cannot be had.
struct LockRefusal
{
    QString file;
    bool isHeld = false; ///< by another program; else the file cannot be made
    qint64 process = 0;
    QString host;
};

/// A lock file that names the process and the host that hold it. That of a process which is gone
/// from this machine is taken over; that of another machine stays until somebody deletes it, since
/// nobody here can know.
class RunLock
{
public:
    /// Takes the lock of that file, which lies beside it and has ".lock" behind its name.
    [[nodiscard]] static tl::expected<std::shared_ptr<RunLock>, LockRefusal>
    take(const QString &file);

    /// What is locked.
    [[nodiscard]] QString file() const { return m_file; }

private:
    explicit RunLock(const QString &file);

    QString m_file;
    QLockFile m_lock;
};
