#pragma once

#include <QObject>

/// Who logs in when, how, and what a refusal leads to.
class TestLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogue_data();
    void dialogue();
    void refusalInPlainWords_data();
    void refusalInPlainWords();
    void messageHeldForALoginIsGivenUpByDisconnect();
    void repliesAheadOfAHeldMessageAreOutOfStep();
    void veryManyMechanismsDoNoHarm();
    void resetDropsTheQuestion();
    void messageHeldForALoginIsNotTakenWhenNoneIsKnown();
};
