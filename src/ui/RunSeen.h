#pragma once

#include "form/Form.h"

#include <QObject>

#include <functional>

/// Notices that somebody has seen how a run ended: the first key or mouse button pressed in any
/// window of the program after it. That a window came to the front says nothing: nobody may sit
/// there.
class RunSeen : public QObject
{
    Q_OBJECT

public:
    /// onSeen is called once for each end of a run.
    RunSeen(const Form &form, std::function<void()> onSeen, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(RunState state);

    std::function<void()> m_onSeen;
};
