#pragma once

#include <QObject>

/// Whole sessions, from Connect to Disconnect.
class TestDialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogue_data();
    void dialogue();
};
