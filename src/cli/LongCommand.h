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

protected:
    /// Says so, unless it was said before.
    void end(ExitCode code);
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

private:
    bool m_hasEnded = false;
};
