#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

/// Asks for a line on a terminal and never waits for it. While a line is asked for, Ctrl-C is a key
/// that cancels it and raises no signal. The terminal is as before when it is answered, cancelled,
/// withdrawn, or this object is gone.
class TerminalLine : public QObject
{
    Q_OBJECT

public:
    enum class Echo { Shown, Hidden };

    /// The path is that of a terminal, as "/dev/tty" for the program's own.
    explicit TerminalLine(const QString &path, QObject *parent = nullptr);
    ~TerminalLine() override;

    /// Whether it is a terminal that can be asked on now: a program in the background has none.
    [[nodiscard]] bool canAsk() const;
    /// Shows the question; entered or cancelled follows. One that was asked before is withdrawn.
    void ask(const QString &question, Echo echo);
    /// Withdraws the question without a further signal.
    void withdraw();

Q_SIGNALS:
    /// The line without its end.
    void entered(const QString &line);
    /// Ctrl-C, Ctrl-D, or the terminal is gone.
    void cancelled();

private:
    struct Terminal;

    void read();
    void end();
    void show(const QString &text);

    std::unique_ptr<Terminal> m_terminal;
    QByteArray m_line;
};
