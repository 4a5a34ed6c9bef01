#include "ui/RunProgress.h"

#include <QProgressBar>

#include <utility>

RunProgress::RunProgress(const Form &form, const SendingEngine &engine, QProgressBar &bar)
    : QObject(&bar), m_form(form), m_engine(engine), m_bar(bar)
{
    connect(&form, &Form::situationChanged, this, &RunProgress::show);
    connect(&form, &Form::runStateChanged, this, &RunProgress::show);
}

void RunProgress::show()
{
    const bool isRunning = m_form.runState() != RunState::Idle;
    const bool wasRunning = std::exchange(m_showsRun, isRunning);
    const quint32 project = m_form.situation().project;
    const bool isAnother = std::exchange(m_project, project) != project;
    if (!isRunning && !wasRunning && !isAnother)
        return;
    const Progress progress = isRunning || wasRunning ? m_engine.progress() : Progress();
    m_bar.setMaximum(qMax(1, progress.total));
    m_bar.setValue(progress.done);
    m_bar.setFormat(progress.total == 0
                        ? QString()
                        : QStringLiteral("%1 / %2").arg(progress.done).arg(progress.total));
}
