#pragma once

#include <QCoreApplication>
#include <QProcess>

/// This test program started once more, in a part that its main() knows by these arguments.
class SecondProgram
{
public:
    explicit SecondProgram(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QCoreApplication::applicationFilePath(), arguments);
    }
    [[nodiscard]] bool hasEnded()
    {
        return m_process.state() == QProcess::NotRunning || m_process.waitForFinished(0);
    }
    /// Waits for its end; -1 when it crashed.
    [[nodiscard]] int exitCode()
    {
        m_process.waitForFinished(-1);
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

private:
    QProcess m_process;
};
