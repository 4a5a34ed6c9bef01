#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include <tl/expected.hpp>

#include <chrono>
#include <functional>

/// Runs one command and takes the first line that it prints. No shell is involved; the command
/// reads nothing, and what it complains about goes where the program's own complaints go.
class CommandOutput : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(CommandOutput)

public:
    /// The line without its end; or why there is none, in plain words without anything that the
    /// command printed.
    using Answer = tl::expected<QString, QString>;
    using Then = std::function<void(Answer)>;

    static constexpr std::chrono::milliseconds UsualLimit{60'000};

    /// Begins. The answer comes from the event loop, once; none comes when the object is gone.
    CommandOutput(const QString &command, std::chrono::milliseconds limit, Then then);
    /// Ends a command that still runs.
    ~CommandOutput() override;

private:
    void take();
    void ended(int exitCode, QProcess::ExitStatus status);
    void fail(const QString &reason);
    void answer(const Answer &answer);

    QString m_program;
    Then m_then;
    QTimer m_limit;
    QProcess *m_process;
    QByteArray m_firstLine;
    bool m_lineIsWhole = false;
};
