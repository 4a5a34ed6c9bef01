#include "base/TerminalLine.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr char Interrupt = 3;
constexpr char Quit = 28;

} // namespace

struct TerminalLine::Terminal
{
    int descriptor = -1;
    std::unique_ptr<QSocketNotifier> notifier;
    std::optional<termios> before; ///< while a line is asked for

    [[nodiscard]] bool isInForeground() const
    {
        // A terminal that does not control this program sends it no signals.
        const pid_t foreground = ::tcgetpgrp(descriptor);
        return foreground < 0 || foreground == ::getpgrp();
    }

    void change(Echo echo)
    {
        termios settings = {};
        if (::tcgetattr(descriptor, &settings) != 0)
            return;
        before = settings;
        // The terminal keeps editing the line. The keys that would raise a signal end it instead,
        // and are seen at its end.
        settings.c_lflag |= ICANON;
        settings.c_lflag &= ~static_cast<tcflag_t>(ISIG);
        settings.c_cc[VEOL] = Interrupt;
        settings.c_cc[VEOL2] = Quit;
        if (echo == Echo::Hidden)
            settings.c_lflag = (settings.c_lflag & ~static_cast<tcflag_t>(ECHO)) | ECHONL;
        ::tcsetattr(descriptor, TCSANOW, &settings);
    }

    void restore()
    {
        // A program in the background would be stopped by this, and another one owns the terminal.
        if (before && isInForeground())
            ::tcsetattr(descriptor, TCSANOW, &*before);
        before.reset();
    }
};

TerminalLine::TerminalLine(const QString &path, QObject *parent)
    : QObject(parent), m_terminal(std::make_unique<Terminal>())
{
    const int flags = O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK;
    m_terminal->descriptor = ::open(QFile::encodeName(path).constData(), flags);
    if (m_terminal->descriptor < 0)
        return;
    m_terminal->notifier =
        std::make_unique<QSocketNotifier>(m_terminal->descriptor, QSocketNotifier::Read);
    m_terminal->notifier->setEnabled(false);
    connect(m_terminal->notifier.get(), &QSocketNotifier::activated, this, &TerminalLine::read);
}

TerminalLine::~TerminalLine()
{
    withdraw();
    m_terminal->notifier.reset();
    if (m_terminal->descriptor >= 0)
        ::close(m_terminal->descriptor);
}

bool TerminalLine::canAsk() const
{
    return m_terminal->descriptor >= 0 && ::isatty(m_terminal->descriptor) == 1 &&
           m_terminal->isInForeground();
}

void TerminalLine::ask(const QString &question, Echo echo)
{
    withdraw();
    if (!canAsk()) {
        QMetaObject::invokeMethod(this, &TerminalLine::cancelled, Qt::QueuedConnection);
        return;
    }
    m_terminal->change(echo);
    show(question);
    m_terminal->notifier->setEnabled(true);
}

void TerminalLine::withdraw()
{
    if (!m_terminal->before)
        return;
    end();
    // What comes next begins on a line of its own.
    show(QStringLiteral("\n"));
}

void TerminalLine::end()
{
    m_terminal->notifier->setEnabled(false);
    m_terminal->restore();
    m_line.fill(0);
    m_line.clear();
}

void TerminalLine::read()
{
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(m_terminal->descriptor, buffer.data(), buffer.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    m_line.append(buffer.data(), std::max<ssize_t>(count, 0));
    buffer.fill(0);
    if (count <= 0 || m_line.endsWith(Interrupt) || m_line.endsWith(Quit)) {
        withdraw();
        Q_EMIT cancelled();
    } else if (m_line.endsWith('\n')) {
        const QString line = QString::fromLocal8Bit(m_line).chopped(1);
        end();
        Q_EMIT entered(line);
    }
}

void TerminalLine::show(const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    // A terminal that takes no more shows less; nothing waits for it.
    [[maybe_unused]] const ssize_t written =
        ::write(m_terminal->descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}
