#pragma once

#include "preflight/Finding.h"
#include "smtp/ServerReport.h"

#include <QList>
#include <QObject>

/// Looks a project over before it is sent. It never stops anybody from starting.
class Preflight : public QObject
{
    Q_OBJECT

public:
    /// Looks at everything that needs no server at once, then asks the server. One that goes on is
    /// begun anew.
    void begin();
    /// Gives up what goes on.
    void giveUp();

    /// What was found so far, the gravest first.
    [[nodiscard]] const QList<Finding> &findings() const { return m_findings; }
    /// The server is still being asked.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    void findingsChanged();
    void finished();

private:
    QList<Finding> m_findings;
    bool m_isRunning = false;
};
