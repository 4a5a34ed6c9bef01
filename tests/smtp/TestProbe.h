#pragma once

#include <QObject>

/// A server is tried out: what the report says after each step, and that no message is sent.
class TestProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStep();
    void nothingListens();
    void noSuchHost();
    void giveUpSaysNothingMore();
    void anotherOneIsBegun();
};
