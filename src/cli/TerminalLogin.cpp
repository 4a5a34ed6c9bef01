#include "cli/TerminalLogin.h"

#include "base/Lines.h"

#include <utility>

TerminalLogin::TerminalLogin(Output &output, const QString &terminal)
    : m_output(output), m_line(terminal)
{
    connect(&m_line, &TerminalLine::entered, this, &TerminalLogin::take);
    connect(&m_line, &TerminalLine::cancelled, this, [this] { finish({}); });
}

TerminalLogin::~TerminalLogin()
{
    m_output.holdProgress(false);
}

void TerminalLogin::askLogin(const LoginBox &box, Stands stands,
                             std::function<void(std::optional<LoginEntry>)> then)
{
    m_waiting.push_back({box, std::move(stands), std::move(then)});
    if (m_waiting.size() == 1)
        begin();
}

void TerminalLogin::begin()
{
    m_output.holdProgress(true);
    const LoginBox &box = m_waiting.front().box;
    // The server's words must not drive the terminal.
    if (!box.refusal.isEmpty())
        m_output.message(withVisibleControls(box.refusal));
    m_entry = {box.user, {}, false};
    askNext();
}

void TerminalLogin::askNext()
{
    const QString server = withVisibleControls(m_waiting.front().box.server);
    if (m_entry.user.isEmpty()) {
        m_line.ask(QStringLiteral("User name at %1: ").arg(server), TerminalLine::Echo::Shown);
    } else {
        m_line.ask(
            QStringLiteral("Password of %1 at %2: ").arg(withVisibleControls(m_entry.user), server),
            TerminalLine::Echo::Hidden);
    }
}

void TerminalLogin::take(const QString &line)
{
    if (line.isEmpty()) {
        finish({});
    } else if (m_entry.user.isEmpty()) {
        m_entry.user = line;
        askNext();
    } else {
        m_entry.password = line;
        finish(std::exchange(m_entry, {}));
    }
}

void TerminalLogin::finish(const std::optional<LoginEntry> &entry)
{
    if (m_waiting.empty())
        return;
    const Asked asked = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_entry = {};
    if (m_waiting.empty())
        m_output.holdProgress(false);
    else
        begin();
    const auto answer = [asked, entry] {
        if (asked.stands())
            asked.then(entry);
    };
    QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
}

void TerminalLogin::closeStale()
{
    if (m_waiting.empty())
        return;
    const bool firstIsStale = !m_waiting.front().stands();
    std::erase_if(m_waiting, [](const Asked &asked) { return !asked.stands(); });
    if (!firstIsStale)
        return;
    m_line.withdraw();
    m_entry = {};
    if (m_waiting.empty())
        m_output.holdProgress(false);
    else
        begin();
}
