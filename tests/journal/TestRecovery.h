#pragma once

#include <QObject>

/// What a program that died has left behind, and what the next one does about it.
class TestRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theQuestionSaysHowManyWereSentAreInDoubtAndAreLeft_data();
    void theQuestionSaysHowManyWereSentAreInDoubtAndAreLeft();
    void continueShowsTheRunPausedWhereItStood();
    void whoIsInDoubtIsNotSentAgain();
    void openAsItIsShowsWhatBecameOfEverybodyWithoutARun();
    void forgetOpensTheFileAsItWasSaved();
    void aClosedQuestionOpensNothingAndIsAskedAgain();
    void aRunWithNobodyLeftCannotBeContinued();
    void aProjectWithoutARunIsOpenedUnasked();
    void atStartTheNewestIsAskedAboutFirst();
    void aRunWithoutAProjectFileIsAskedAboutAtStart();
    void aRunThatSentNothingIsNotAskedAbout();
    void aDamagedRecordIsSaidToBeDamaged();
    void aRecordThatCannotBeReadIsSaidAndStays();
    void aProjectWhoseRunAnotherProcessHasOpenIsNotOpened();
    void nobodyElseRunsAProjectThatIsAskedAboutOrOpenAsItIs();
    void whatBecameOfTheMessageInFlightBehindTheQuestionCounts();
    void aRunThatWasStoppedIsNotSaidToHaveBeenInterrupted();
    void theProjectAtTheCommandLineIsAskedAbout();
    void aPausedRunOfThisWindowIsAskedAboutWhenItsProjectIsOpenedAgain();
    void aProjectOpenedAgainWhileItsMessageIsInFlightIsAskedAbout();
    void whatBecomesOfTheRunWhileTheQuestionIsOpenCounts();
    void aRunThatGoesOnWhileTheQuestionIsOpenIsLeftAlone();
    void aRunThatIsSavedWhileTheQuestionIsOpenIsOpenedFromItsFile();
    void theControlRowGoesOnWithTheRunAndNotWithoutIt();
    void aRunContinuedAndKilledAgainIsContinuedAgain();
    void aRecoveredRunCountsAsModified();
};
