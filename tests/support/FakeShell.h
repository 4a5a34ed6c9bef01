#pragma once

#include "base/Shell.h"

#include <QList>

/// A desktop that records what it is asked for.
class FakeShell : public Shell
{
public:
    struct Start
    {
        QString program;
        QStringList arguments;
    };

    void open(const QString &address) override { opened.append(address); }
    [[nodiscard]] bool isProgram(const QString &name) const override
    {
        return programs.contains(name);
    }
    bool start(const QString &program, const QStringList &arguments) override
    {
        started.append({program, arguments});
        return startsWork;
    }

    QStringList programs;   ///< what isProgram knows
    bool startsWork = true; ///< what start returns
    QStringList opened;
    QList<Start> started;
};
