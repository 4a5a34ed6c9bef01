#pragma once

#include <QObject>

/// The label that shows how large the message is.
class TestMessageSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noFilesAtAll();
    void textFileOf1536BytesAndNothingElse();
    void htmlFileAndItsPicture();
    void missingPictureCountsMinusOne();
    void singleQuotedLinkRunsToTheNextDoubleQuoteAndCountsMinusOne();
    void everyLinkCounts_data();
    void everyLinkCounts();
    void pictureThatClimbsOutCountsMinusOne();
    void attachmentsCount();
    void missingFilesNeverFail();
    void htmlFileIsReadAndLoggedEachTime();
    void unreadableHtmlShowsTheBoxAndCountsMinusOne();
    void linkWithoutAClosingQuoteFails();
    void moreThanTwoGibibytesFail();
    void eachAdditionIsChecked();
    void failuresAreItalianInItalian();
    void failureEndsTheCommandThatAsked();
    void decimalSignIsTheUsers();
    void sizeTexts_data();
    void sizeTexts();
};
