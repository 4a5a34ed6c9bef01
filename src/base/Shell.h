#pragma once

#include <QString>
#include <QStringList>

/// What the desktop does for the program: opening a document or an address with whatever program it
/// has for it, and starting a program. Nothing waits for either.
class Shell
{
public:
    Shell() = default;
    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;
    virtual ~Shell() = default;

    /// Opens an address: "file://", "https://" or "mailto:" and what follows. What comes of it is
    /// not known.
    virtual void open(const QString &address) = 0;
    /// Whether there is a program of that path, or of that name where the system looks for them.
    [[nodiscard]] virtual bool isProgram(const QString &name) const = 0;
    /// False when the program cannot be started.
    virtual bool start(const QString &program, const QStringList &arguments) = 0;
};
