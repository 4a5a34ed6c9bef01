#pragma once

#include <QObject>

/// Numbers in texts and files.
class TestNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeNumbers_data();
    void wholeNumbers();
    void rangeOfAType();
    void rangeGiven();
    void leadingNumbers_data();
    void leadingNumbers();
    void numbersAsFilesHoldThem();
};
