#pragma once

#include <QObject>

/// The page of an account, without its window.
class TestAccountPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What is kept.
    void itBeginsWithWhatIsKept();
    void whatIsEnteredIsKept();
    void nothingIsKeptBeforeItIsWanted();
    void linesPastedIntoAFieldBecomeOne();
    void whatASessionLearntMeanwhileStays();
    void whatIsRemovedIsRemovedOnceItIsKept();
    void passwordOrTokenWithoutAUserIsRefused_data();
    void passwordOrTokenWithoutAUserIsRefused();
    void settingsThatCannotBeWrittenAreSaid();

    // The keyring.
    void keyringIsAskedForWithoutReadingIt();
    void passwordGoesIntoTheKeyringAndNowhereElse();
    void passwordThatIsNotTypedStaysAsItIs();
    void passwordIsForgottenForTheUserThatIsKept();
    void newPasswordTakesThePlaceOfAForgottenOne();
    void keyringThatFailsIsSaidAndCanBeTriedAgain();
    void answerOfTheKeyringAfterThePageIsGoneChangesNothing();

    // The test.
    void testKeepsThenAsksTheServer();
    void testThatCannotKeepDoesNotAsk();
    void reportGrowsAsItComes();
    void stoppedTestSaysNoMore();
    void testIsGivenUpWithThePage();
    void nothingElseBeginsDuringATest();
    void refusedCertificateCanBeTrustedAndIsTestedAgain();
    void onlyARefusedCertificateCanBeTrusted_data();
    void onlyARefusedCertificateCanBeTrusted();
};
