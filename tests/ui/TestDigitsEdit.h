#pragma once

#include "WindowTest.h"

class TestDigitsEdit : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void digitsCanBeTyped();
    void aTypedLetterIsRefused_data();
    void aTypedLetterIsRefused();
    void pastingIsNotFiltered();
    void textOfAnInputMethodIsTyped();
};
