#include "journal/RunLock.h"

RunLock::RunLock(const QString &file) : m_file(file), m_lock(file + QLatin1String(".lock"))
{
    // However long a run takes: its lock does not grow old.
    m_lock.setStaleLockTime(0);
}

tl::expected<std::shared_ptr<RunLock>, LockRefusal> RunLock::take(const QString &file)
{
    const std::shared_ptr<RunLock> lock(new RunLock(file));
    if (lock->m_lock.tryLock(0))
        return lock;
    LockRefusal refusal;
    refusal.file = lock->m_lock.fileName();
    QString program;
    refusal.isHeld = lock->m_lock.error() == QLockFile::LockFailedError;
    if (refusal.isHeld)
        lock->m_lock.getLockInfo(&refusal.process, &refusal.host, &program);
    return tl::unexpected(refusal);
}
