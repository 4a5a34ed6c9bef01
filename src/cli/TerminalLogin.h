#pragma once

#include "base/TerminalLine.h"
#include "cli/Output.h"
#include "prompts/LoginPrompt.h"

#include <QObject>

#include <deque>

/// Asks for a login on the terminal: the user where none is known, and the password, which is not
/// shown. An empty answer is Cancel, as Ctrl-C is. The line of progress stays away meanwhile.
class TerminalLogin : public QObject, public LoginPrompt
{
    Q_OBJECT

public:
    explicit TerminalLogin(Output &output, const QString &terminal = QStringLiteral("/dev/tty"));
    ~TerminalLogin() override;

    /// Whether there is a terminal to ask on.
    [[nodiscard]] bool canAsk() const { return m_line.canAsk(); }

    void askLogin(const LoginBox &box, Stands stands,
                  std::function<void(std::optional<LoginEntry>)> then) override;
    void closeStale() override;

private:
    struct Asked
    {
        LoginBox box;
        Stands stands;
        std::function<void(std::optional<LoginEntry>)> then;
    };

    void begin();
    void askNext();
    void take(const QString &line);
    void finish(const std::optional<LoginEntry> &entry);

    Output &m_output;
    TerminalLine m_line;
    std::deque<Asked> m_waiting; ///< the first one is being asked
    LoginEntry m_entry;          ///< what is entered of it
};
