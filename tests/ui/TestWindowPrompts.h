#pragma once

#include "WindowTest.h"

#include <QTemporaryDir>

class TestWindowPrompts : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    // When boxes open.
    void noticesAreShownOneAtATimeInOrder();
    void aBoxWithAnAnswerWaitsForTheNoticesBeforeIt_data();
    void aBoxWithAnAnswerWaitsForTheNoticesBeforeIt();
    void aNoticeShowsAboveAnOpenBox_data();
    void aNoticeShowsAboveAnOpenBox();
    void aNoticeBehindAWaitingQuestionShowsTogetherWithIt();
    void twoQuestionsAreOpenTogether();
    void boxesWaitForTheWindowAndTheEventLoop();

    // Answers.
    void everyBoxIsModalForItsWindowAndDeletesItself_data();
    void everyBoxIsModalForItsWindowAndDeletesItself();
    void theAnswerIsPosted_data();
    void theAnswerIsPosted();
    void aContinuationMayAskAgain();
    void anAnswerThatNoLongerCountsIsDropped();
    void aStaleBoxClosesWithoutAnAnswer_data();
    void aStaleBoxClosesWithoutAnAnswer();
    void aStaleWaitingBoxNeverOpens_data();
    void aStaleWaitingBoxNeverOpens();
    void aBoxThatIsStaleInItsTurnNeverOpens();
    void aBoxThatStandsStaysOpen();
    void theBoxBelowAStaleOneHasTheKeys();
    void boxesOpenOverADialogThatBlocksTheWindow_data();
    void boxesOpenOverADialogThatBlocksTheWindow();
    void boxesOpenOverTheWindowWhenADialogBlocksNothing();
    void boxesGoAwayWithTheirWindow();
    void boxesGoAwayWithThePrompts();

    // Message boxes.
    void aNoticeShowsItsValues_data();
    void aNoticeShowsItsValues();
    void theDetailIsShownPlain();
    void theTitleIsTheProgramsNameWhenThereIsNone();
    void keysAnswerQuestions_data();
    void keysAnswerQuestions();
    void whatToDoWithALeftRunHasButtonsOfItsOwn_data();
    void whatToDoWithALeftRunHasButtonsOfItsOwn();
    void enterDeclinesWhatNobodyShouldAgreeToUnread();
    void closingAnswersCancelOrNothing_data();
    void closingAnswersCancelOrNothing();
    void aNoticeCanBeDismissed_data();
    void aNoticeCanBeDismissed();
    void aLongListScrollsAndTheBoxFits();
    void theListCanBeReachedScrolledAndLeftByKeys();
    void aListSurvivesAChangeOfStyle();
    void aShortListIsShownWhole();
    void anEndlessLineWraps_data();
    void anEndlessLineWraps();
    void anEndlessDetailIsScrolled();
    void qtsButtonsSpeakItalian();

    // Input boxes.
    void keysAnswerAnInputBox_data();
    void keysAnswerAnInputBox();
    void linesPastedIntoAnInputBoxBecomeOne();
    void theInputBoxIsLabelled();

    // File dialogs.
    void filtersAreConverted_data();
    void filtersAreConverted();
    void theDialogHasTheValuesOfItsKind();
    void theShownFilterNamesItsPatternOnce();
    void capitalSuffixesAreFound();
    void aChosenFileIsAnsweredWithItsPath();
    void aCancelledDialogAnswersNothing();
    void anOpenedNameGetsTheSuffixOnlyWhenSuchAFileExists_data();
    void anOpenedNameGetsTheSuffixOnlyWhenSuchAFileExists();
    void aSavedNameGetsTheSuffix_data();
    void aSavedNameGetsTheSuffix();
    void theProposedNameIsTakenByReturn();
    void overwritingIsAskedForWhereItShould();
    void aDialogThatAsksMayBecomeStale();
    void dialogsShareTheirLastFolder();
    void theFolderOfADialogExists_data();
    void theFolderOfADialogExists();

private:
    QTemporaryDir m_home;
    QByteArray m_formerHome;
    QByteArray m_formerConfig;
    QString m_documents;
};
