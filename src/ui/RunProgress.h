#pragma once

#include "form/Form.h"
#include "sending/SendingEngine.h"

#include <QObject>

class QProgressBar;

/// How far the run has got, on a bar. When no run is shown the bar keeps what the last run of its
/// project reached.
class RunProgress : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the bar.
    RunProgress(const Form &form, const SendingEngine &engine, QProgressBar &bar);

    /// Shows what has changed since the last call.
    void show();

private:
    const Form &m_form;
    const SendingEngine &m_engine;
    QProgressBar &m_bar;
    quint32 m_project = 0; ///< the one whose progress is shown
    bool m_showsRun = false;
};
