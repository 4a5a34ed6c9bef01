#include "journal/JournalFile.h"

#include "journal/RunFolder.h"

#include <utility>

namespace {

/// How much a loss of power may take, in milliseconds.
constexpr quint32 MostUnsynced = 50;

} // namespace

JournalFile::JournalFile(const QString &path, std::shared_ptr<RunLock> lock, const Clock &clock,
                         DiskSync &sync)
    : m_path(path), m_lock(std::move(lock)), m_clock(clock), m_sync(sync)
{}

tl::expected<void, FileError> JournalFile::begin(const QByteArray &content)
{
    m_file.reset();
    if (auto written = replaceWholeFile(m_path, content); !written)
        return written;
    auto file = AppendedFile::open(m_path);
    if (!file)
        return tl::unexpected(file.error());
    m_file = std::move(*file);
    m_unwritten.clear();
    m_diskFault.reset();
    // All that was known is in the content.
    ++m_content;
    m_isSyncing = false;
    m_oldestUnderWay.reset();
    m_oldestWaiting.reset();
    return {};
}

tl::expected<void, FileError> JournalFile::append(const QByteArray &line)
{
    if (!m_file) // left behind, and nothing goes on in it
        return {};
    if (m_diskFault)
        return tl::unexpected(*m_diskFault);
    if (auto appended = m_file->append(m_unwritten + line); !appended)
        return appended;
    m_unwritten.clear();
    noteUnsynced();
    return {};
}

void JournalFile::appendNowOrLater(const QByteArray &line)
{
    if (!append(line))
        m_unwritten += line;
}

void JournalFile::noteUnsynced()
{
    if (!m_oldestWaiting)
        m_oldestWaiting = m_clock.tickCount();
    if (!m_isSyncing)
        sync();
}

// One job at a time.
void JournalFile::sync()
{
    m_isSyncing = true;
    const auto call = [file = weak_from_this(), content = m_content](auto then) {
        if (const auto alive = file.lock(); alive && alive->m_content == content)
            then(*alive);
    };
    m_sync.begin(
        m_file->diskJob(),
        [call] {
            call([](JournalFile &file) {
                file.m_oldestUnderWay = std::exchange(file.m_oldestWaiting, std::nullopt);
            });
        },
        [call](const auto &result) { call([&](JournalFile &file) { file.synced(result); }); });
}

void JournalFile::synced(const tl::expected<void, FileError> &result)
{
    m_isSyncing = false;
    m_oldestUnderWay.reset();
    if (!result)
        m_diskFault = result.error();
    else if (m_oldestWaiting)
        sync();
    if (m_whenCaughtUp && isCaughtUp())
        std::exchange(m_whenCaughtUp, nullptr)();
}

bool JournalFile::isCaughtUp() const
{
    const auto oldest = m_oldestUnderWay ? m_oldestUnderWay : m_oldestWaiting;
    return m_diskFault || !oldest || m_clock.tickCount() - *oldest <= MostUnsynced;
}

void JournalFile::remove() const
{
    RunFolder::remove(m_path);
}
