#pragma once

#include <QObject>

class TestDigitsEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digitsCanBeTyped();
    void aTypedLetterIsRefused_data();
    void aTypedLetterIsRefused();
    void pastingIsNotFiltered();
    void textOfAnInputMethodIsTyped();
};
