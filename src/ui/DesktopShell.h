#pragma once

#include "base/Shell.h"

/// The desktop that the program runs on.
class DesktopShell final : public Shell
{
public:
    void open(const QString &address) override;
    [[nodiscard]] bool isProgram(const QString &name) const override;
    bool start(const QString &program, const QStringList &arguments) override;
};
