#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <cstdio>

/// What the commands say: results to standard output, messages to standard error, and while a
/// person watches, one line at the bottom that shows how far a run is.
class Output
{
public:
    explicit Output(std::FILE *results = stdout, std::FILE *messages = stderr);

    void result(const QString &line);
    void bytes(const QByteArray &content);
    void message(const QString &line);

    /// Shows how many of the rows are done, and a text. Does nothing without a terminal.
    void showProgress(int done, int total, const QString &text);
    /// Takes that line away.
    void clearProgress();
    /// Keeps that line away while something is asked on the terminal.
    void holdProgress(bool hold);
    /// Whether a new line of progress would be seen, or would only flicker.
    [[nodiscard]] bool progressIsDue() const;
    void flush();

private:
    std::FILE *m_results;
    std::FILE *m_messages;
    bool m_hasTerminal;
    bool m_showsProgress = false;
    bool m_holdsProgress = false;
    QElapsedTimer m_sinceProgress;
};
