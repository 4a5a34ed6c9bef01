#pragma once

#include "cli/ExitCode.h"

#include <QObject>

/// A command that waits for a server or a clock.
class LongCommand : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void start() = 0;
    /// Ctrl-C.
    virtual void interrupt() = 0;

Q_SIGNALS:
    /// The last signal of a command; comes once.
    void finished(ExitCode code);
};
