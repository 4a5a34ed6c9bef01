#pragma once

#include <QObject>

class TestMomentTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDateHasEnglishNamesInEveryLocale();
    void theDateFollowsTheClock();
    void anIdentifierLosesPointsAndSlashesOnly();
    void identifiersHoldDigitsAndTheComputersName();
    void aClockThatStandsGivesNoIdentifierTwice();
    void aClockThatStepsBackGivesNoIdentifierTwice();
    void theHourThatComesTwiceGivesNoIdentifierTwice();
};
