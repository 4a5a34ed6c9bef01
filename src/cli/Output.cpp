#include "cli/Output.h"

#include "base/Terminal.h"

#include <algorithm>
#include <cstdio>

namespace {

void put(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

} // namespace

Output::Output() : m_hasTerminal(isTerminal(stderr)) {}

void Output::result(const QString &line)
{
    bytes(line.toLocal8Bit() + '\n');
}

void Output::bytes(const QByteArray &content)
{
    clearProgress();
    put(stdout, content);
}

void Output::message(const QString &line)
{
    clearProgress();
    flush();
    put(stderr, line.toLocal8Bit() + '\n');
}

void Output::showProgress(int done, int total, const QString &text)
{
    if (!m_hasTerminal || m_holdsProgress)
        return;
    constexpr int Width = 30;
    const int filled = total > 0 ? std::clamp(done * Width / total, 0, Width) : 0;
    flush();
    clearProgress();
    put(stderr, '[' + QByteArray(filled, '#') + QByteArray(Width - filled, '-') + "] " +
                    QByteArray::number(done) + '/' + QByteArray::number(total) + "  " +
                    text.toLocal8Bit());
    m_showsProgress = true;
    m_sinceProgress.start();
}

void Output::clearProgress()
{
    if (!m_showsProgress)
        return;
    put(stderr, "\r\x1b[K");
    m_showsProgress = false;
}

void Output::holdProgress(bool hold)
{
    if (hold)
        clearProgress();
    m_holdsProgress = hold;
}

bool Output::progressIsDue() const
{
    constexpr qint64 Milliseconds = 100;
    return m_hasTerminal &&
           (!m_sinceProgress.isValid() || m_sinceProgress.elapsed() >= Milliseconds);
}

void Output::flush()
{
    std::fflush(stdout);
}
