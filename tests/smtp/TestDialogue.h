#pragma once

#include <QObject>

/// Whole sessions in which the server behaves, or refuses in an orderly way.
class TestDialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogue_data();
    void dialogue();
    void group_data();
    void group();
    void messageInFlight_data();
    void messageInFlight();
    void endedSession_data();
    void endedSession();
};
