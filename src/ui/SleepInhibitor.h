#pragma once

#include "form/Form.h"

#include <QDBusUnixFileDescriptor>
#include <QObject>

/// Keeps the computer from going to sleep while a run goes, with an inhibitor lock of systemd's
/// login manager, asked for over D-Bus. A paused run lets it sleep: nobody may come back to it for
/// hours. Where there is no such service nothing happens.
class SleepInhibitor : public QObject
{
    Q_OBJECT

public:
    explicit SleepInhibitor(const Form &form, QObject *parent = nullptr);

private:
    void follow(RunState state);
    void ask();

    bool m_isWanted = false;
    bool m_isAsked = false;
    QDBusUnixFileDescriptor m_lock; ///< holds as long as it is open, also when this program dies
};
