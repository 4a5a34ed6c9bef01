#pragma once

#include <QObject>

/// What is found before a run, and where each finding is put right.
class TestPreflight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsFoundWhereAllIsWell();
    void allThatStartRefusesIsFound();
    void aPauseIsHeldToWhatResumeRefuses();
    void fieldFindings_data();
    void fieldFindings();
    void aMessageFileThatCannotBeReadIsRefused_data();
    void aMessageFileThatCannotBeReadIsRefused();
    void messageFindings_data();
    void messageFindings();
    void anHtmlMessageAloneWantsATextMessage();
    void eachAttachmentThatCannotBeReadIsNamed();
    void eachPictureThatStaysBehindIsNamed();
    void noPictureIsAskedAboutInAPause();
    void aMessageThatCannotBeBuiltFails();
    void whoGetsItTwiceIsFound();
    void theControlAddressAmongTheRowsIsFound();
    void uncheckedRowsAreLeftOut();
    void rowsWithoutANameAreFoundWhereTheMessageUsesIt();
    void addressesThatNoServerTakesAreFound();
    void whoGotItAlreadyIsFound();
    void nobodyCheckedIsFound();
    void manyFindingsOfOneKindAreCapped();
    void theGravestComeFirst();
    void theServerIsAsked();
    void whatTheServerSaysIsFound_data();
    void whatTheServerSaysIsFound();
    void theLargestMessageIsHeldAgainstTheComposedOne();
    void withoutAServerItFinishesFromTheEventLoop();
    void lookingAsksNoServer();
    void beginningAnewAsksAnew();
    void givingUpSaysNothingMore();
    void findingsOfAnotherProjectAreDropped();
    void lookingChangesNothing();
};
