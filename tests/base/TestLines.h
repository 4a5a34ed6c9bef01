#pragma once

#include <QObject>

/// Reading a text line by line.
class TestLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void lineEndsAtTheStart();
    void severalLinesBecomeOne();
    void controlCharactersBecomeVisible();
};
