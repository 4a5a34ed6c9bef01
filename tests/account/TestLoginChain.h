#pragma once

#include <QObject>

/// Where a login comes from.
class TestLoginChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandForTokensComesBeforeAllOthers();
    void commandForPasswordsComesBeforeTheKeyring();
    void commandsNeedAUserName();
    void commandThatFailsIsTheReason();
    void keyringComesBeforeTheNetrcFile();
    void keyringIsNotAskedWithoutAUserName();
    void netrcFileComesBeforeThePerson();
    void netrcFileOfOthersIsSaidOnceAndThePersonAsked();
    void personIsAskedWhenNothingIsKnown();
    void boxOffersToRememberOnlyWithAKeyring();
    void withoutAPersonTheReasonSaysWhatToDo();
    void cancelIsAReason();

    void acceptedLoginIsUsedAgainOnEveryPortOfTheHost();
    void acceptedLoginOfAnotherUserIsNotUsed();
    void passwordKeptInTheKeyringReplacesTheAcceptedOne();
    void acceptedPasswordIsNotUsedInPlaceOfAToken();
    void tokenIsAskedForAnewEachTime();
    void refusedLoginIsForgotten();
    void refusalOfAnotherLoginForgetsNothing();
    void afterARefusalOnlyThePersonIsAsked();
    void afterARefusalWithoutAPersonTheAnswerIsTheRefusal();
    void boxAfterARefusalBeginsWithTheUserWhoWasRefused();

    void acceptedEntryKeepsTheNameAlone();
    void acceptedEntryIsRememberedWhenThePersonSaysSo();
    void refusedEntryIsNotRemembered();
    void laterEntryThatIsNotToBeRememberedIsNot();
    void loginThatNobodyEnteredKeepsNoName();
    void passwordThatCannotBeRememberedIsSaid();

    void answersAreNeverGivenFromInsideTheCall();
    void requestThatNoLongerStandsGetsNoAnswer_data();
    void requestThatNoLongerStandsGetsNoAnswer();
    void boxOfARequestThatIsDroppedCloses();
    void twoRequestsAreIndependent();
    void whatTwoSessionsAskForIsEnteredOnce();
    void anotherUserOrServerOrOneWhoWasRefusedIsStillAskedFor();
    void chainThatIsGoneAnswersNothing();
};
