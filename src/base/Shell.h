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
    /// False when there is no such program or it cannot be started.
    virtual bool start(const QString &program, const QStringList &arguments) = 0;
};
