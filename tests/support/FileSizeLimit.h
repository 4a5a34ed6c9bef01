#pragma once

#include <QTest>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>

/// While it lives, no file that this program writes grows beyond that size: what a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

/// Calls body with each number of bytes short of `size`: those for which a disk may have room and
/// no more. Of a large file that is every byte near both of its ends, and a hundred places between
/// them. A check that fails in body ends it.
template <typename Body>
void forEachFullDisk(qint64 size, const Body &body)
{
    constexpr qint64 Edge = 1024;
    constexpr qint64 Places = 100;
    const qint64 step = std::max<qint64>(1, (size - 2 * Edge) / Places);
    for (qint64 room = 0; room < size;) {
        body(static_cast<rlim_t>(room));
        if (QTest::currentTestFailed()) {
            const QByteArray where = QByteArray::number(room) + " of " + QByteArray::number(size);
            QTest::qFail(("with room for " + where + " bytes").constData(), __FILE__, __LINE__);
            return;
        }
        const bool isBetween = room >= Edge && room + step < size - Edge;
        room += isBetween ? step : 1;
    }
}
