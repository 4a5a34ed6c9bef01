#pragma once

#include "smtp/ServerReport.h"

#include <QObject>

/// Tries a server out: looks it up, connects, encrypts, logs in by the rules of a run, and says
/// goodbye. It sends no message.
class ServerProbe : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Begins; one that goes on is given up first. A name that is empty is a failure too.
    virtual void begin(const ServerAddress &server) = 0;
    /// Gives up without a further signal.
    virtual void giveUp() = 0;

Q_SIGNALS:
    /// One more step was made.
    void progressed(const ServerReport &report);
    /// It is over: with a failure, or all is well.
    void finished(const ServerReport &report);
};
