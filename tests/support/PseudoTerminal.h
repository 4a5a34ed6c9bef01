#pragma once

#include <QByteArray>
#include <QFile>
#include <QSocketNotifier>
#include <QString>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

/// A terminal with the test in front of it. It controls no program.
class PseudoTerminal
{
public:
    PseudoTerminal()
    {
        if (m_front < 0 || ::grantpt(m_front) != 0 || ::unlockpt(m_front) != 0) {
            QTest::qFail("there is no terminal", __FILE__, __LINE__);
            return;
        }
        path = QString::fromLocal8Bit(::ptsname(m_front));
        // As a shell holds it open, whose settings must come back.
        m_shell = ::open(::ptsname(m_front), O_RDWR | O_NOCTTY | O_CLOEXEC);
        m_notifier = std::make_unique<QSocketNotifier>(m_front, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { take(); });
        m_before = settings();
    }
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;
    ~PseudoTerminal() { hangUp(); }

    /// Keys, as the keyboard sends them.
    void type(const QByteArray &keys) const
    {
        if (::write(m_front, keys.constData(), static_cast<std::size_t>(keys.size())) !=
            keys.size())
            QTest::qFail("the terminal takes no keys", __FILE__, __LINE__);
    }
    /// The window is closed.
    void hangUp()
    {
        m_notifier.reset();
        if (m_front >= 0)
            ::close(m_front);
        if (m_shell >= 0)
            ::close(m_shell);
        m_front = m_shell = -1;
    }
    [[nodiscard]] bool echoes() const { return (settings().c_lflag & ECHO) != 0; }
    /// Whether Ctrl-C is a signal, as it is for a shell's programs.
    [[nodiscard]] bool raisesSignals() const { return (settings().c_lflag & ISIG) != 0; }
    [[nodiscard]] bool isAsBefore() const
    {
        const termios now = settings();
        return now.c_lflag == m_before.c_lflag && now.c_iflag == m_before.c_iflag &&
               now.c_oflag == m_before.c_oflag &&
               std::equal(std::begin(now.c_cc), std::end(now.c_cc), std::begin(m_before.c_cc));
    }

    QString path;
    QByteArray shown; ///< what can be read on it, CR LF being the end of a line

private:
    void take()
    {
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(m_front, buffer.data(), buffer.size());
        if (count > 0)
            shown.append(buffer.data(), count);
    }
    [[nodiscard]] termios settings() const
    {
        termios now = {};
        ::tcgetattr(m_shell, &now);
        return now;
    }

    int m_front = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    int m_shell = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    termios m_before = {};
};
