#include "account/CommandOutput.h"

#include <utility>

namespace {

/// Beyond this it is no password and no token.
constexpr qsizetype LongestLine = 65'536;

} // namespace

CommandOutput::CommandOutput(const QString &command, std::chrono::milliseconds limit, Then then)
    : m_then(std::move(then)), m_process(new QProcess)
{
    QStringList arguments = QProcess::splitCommand(command);
    m_program = arguments.isEmpty() ? QString() : arguments.takeFirst();
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &CommandOutput::take);
    connect(m_process, &QProcess::finished, this, &CommandOutput::ended);
    connect(
        m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                fail(tr("the command \"%1\" cannot be started").arg(m_program));
        },
        // A program that is not there is noticed inside start.
        Qt::QueuedConnection);
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this, limit] {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit).count();
        fail(tr("the command \"%1\" has not ended after %2 seconds").arg(m_program).arg(seconds));
    });
    m_limit.start(limit);
    m_process->start(m_program, arguments);
}

CommandOutput::~CommandOutput()
{
    m_process->disconnect(this);
    if (m_process->state() == QProcess::NotRunning) {
        m_process->deleteLater();
        return;
    }
    // Waiting for its end here would block; the process outlives this object until then.
    connect(m_process, &QProcess::finished, m_process, &QObject::deleteLater);
    m_process->kill();
}

void CommandOutput::take()
{
    const QByteArray bytes = m_process->readAllStandardOutput();
    if (m_lineIsWhole)
        return;
    const qsizetype end = bytes.indexOf('\n');
    m_firstLine += end < 0 ? bytes : bytes.first(end);
    m_lineIsWhole = end >= 0;
    if (m_firstLine.size() > LongestLine)
        fail(tr("the command \"%1\" printed too much").arg(m_program));
}

void CommandOutput::ended(int exitCode, QProcess::ExitStatus status)
{
    take();
    if (m_firstLine.endsWith('\r'))
        m_firstLine.chop(1);
    if (status != QProcess::NormalExit)
        fail(tr("the command \"%1\" was ended by force").arg(m_program));
    else if (exitCode != 0)
        fail(tr("the command \"%1\" failed with exit status %2").arg(m_program).arg(exitCode));
    else if (m_firstLine.isEmpty())
        fail(tr("the command \"%1\" printed nothing").arg(m_program));
    else
        answer(QString::fromLocal8Bit(m_firstLine));
}

void CommandOutput::fail(const QString &reason)
{
    answer(tl::unexpected(reason));
}

void CommandOutput::answer(const Answer &answer)
{
    m_limit.stop();
    m_process->disconnect(this);
    m_firstLine.clear();
    // The continuation may end this object.
    if (const Then then = std::exchange(m_then, {}))
        then(answer);
}
