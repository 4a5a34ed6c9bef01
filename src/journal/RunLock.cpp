#include "journal/RunLock.h"

#include <QFile>

namespace {

// A program that died while it took a lock left a file that does not yet say whose it is, and would
// hold everybody up for ever. Removes such files, unless a living program is just writing one.
bool removeNameless(const QString &lockFile)
{
    bool anyRemoved = false;
    // Beside a lock that is taken over stands one with this ending, for whoever takes it over.
    for (QString file = lockFile; QFile::exists(file); file += QLatin1String(".rmlock")) {
        QLockFile lock(file);
        qint64 process = 0;
        QString host;
        QString program;
        if (!lock.getLockInfo(&process, &host, &program))
            anyRemoved = lock.removeStaleLockFile() || anyRemoved;
    }
    return anyRemoved;
}

} // namespace

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
    refusal.isHeld = lock->m_lock.error() == QLockFile::LockFailedError;
    if (refusal.isHeld && removeNameless(refusal.file) && lock->m_lock.tryLock(0))
        return lock;
    if (refusal.isHeld) {
        QString program;
        lock->m_lock.getLockInfo(&refusal.process, &refusal.host, &program);
    }
    return tl::unexpected(refusal);
}
