#pragma once

#include <QObject>

class TestDispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherCodesChangeNothing();
    void packetsOfThreeWithFiveRows();
    void aPacketFilledByTheLastMessageEndsTheRun();
    void aPacketFilledBeforeUncheckedRowsNeedsOneMore();
    void uncheckedRowsPassedOverAreNotSent();
    void uncheckedRowsAtTheEndAreMarkedByALaterSearch();
    void noCheckedRowConnectsAndEnds();
    void aGroupOfTwoPassesOverTheUncheckedRow();
    void aGroupIsThePacketSizeNotTheRoomLeft();
    void everyMemberOfAGroupGetsTheFirstName();
    void theNameReplacesEveryToken();
    void anEmptyNameRemovesTheToken();
    void aTokenInLowerCaseStays();
    void withoutATextMessageTheBodySaysSo();
    void withoutAnHtmlMessageTheHtmlBodyIsNotWritten();
    void theMessageIsFilledFromTheForm();
    void aReceiptIsRequestedForTheSender();
    void attachmentsAreAddedToEveryMessageInOrder();
    void everyMessageHasItsOwnIdentifier();
    void theRowSentToIsTheCurrentOne();
    void handingOverMarksTheProjectModified();
    void theLogNamesEveryMessage();
    void theWholeLogOfARun();
};
