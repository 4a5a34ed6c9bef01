#include "cli/Output.h"

#include "base/Terminal.h"

#include <algorithm>

namespace {

void put(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

} // namespace

Output::Output(std::FILE *results, std::FILE *messages)
    : m_results(results), m_messages(messages), m_hasTerminal(isTerminal(messages))
{}

void Output::result(const QString &line)
{
    bytes(line.toLocal8Bit() + '\n');
}

void Output::bytes(const QByteArray &content)
{
    clearProgress();
    put(m_results, content);
}

void Output::message(const QString &line)
{
    clearProgress();
    flush();
    put(m_messages, line.toLocal8Bit() + '\n');
}

void Output::showProgress(int done, int total, const QString &text)
{
    if (!m_hasTerminal || m_holdsProgress)
        return;
    constexpr int Width = 30;
    const int filled = total > 0 ? std::clamp(done * Width / total, 0, Width) : 0;
    flush();
    clearProgress();
    put(m_messages, '[' + QByteArray(filled, '#') + QByteArray(Width - filled, '-') + "] " +
                        QByteArray::number(done) + '/' + QByteArray::number(total) + "  " +
                        text.toLocal8Bit());
    m_showsProgress = true;
    m_sinceProgress.start();
}

void Output::clearProgress()
{
    if (!m_showsProgress)
        return;
    put(m_messages, "\r\x1b[K");
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
    std::fflush(m_results);
}
