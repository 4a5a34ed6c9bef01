#pragma once

#include "WindowTest.h"

class TestHtmlView : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void pictureInTheFolderIsShown_data();
    void pictureInTheFolderIsShown();
    void pictureFromElsewhereIsNotShown_data();
    void pictureFromElsewhereIsNotShown();
    void pictureInsideTheTextIsShown();
    void pictureTooLargeToDecodeIsLeftOut();
    void largePictureKeepsItsSize();
    void textStandsForAMissingPicture();
    void pictureIsRepeatedBehindABox();
    void styleSheetOfTheFolderIsRead_data();
    void styleSheetOfTheFolderIsRead();
    void styleSheetThatImportsItselfIsReadOnce();
    void boxIsPaintedAtItsPlace();
    void roundCornerLetsThePageThrough();
    void pageIsBlackOnWhiteOnADarkDesktop();
    void tableIsCentredByWhatStandsAround_data();
    void tableIsCentredByWhatStandsAround();
    void plainText_data();
    void plainText();
    void copyTakesTheWholeText();
    void textIsThereForScreenReaders();
    void narrowerViewMakesALongerPage();
    void widePageCanBeScrolledSideways();
    void wheelScrolls();
    void keysScroll();
    void newTextBeginsAtTheTop();
    void addressOfALinkIsTold();
    void deepNestingIsShownAsWritten_data();
    void deepNestingIsShownAsWritten();
    void moderateNestingIsLaidOut_data();
    void moderateNestingIsLaidOut();
    void textThatWouldTakeForEverIsShownAsWritten_data();
    void textThatWouldTakeForEverIsShownAsWritten();
    void trickIsHarmless_data();
    void trickIsHarmless();
    void malformedTextIsShown_data();
    void malformedTextIsShown();
    void longLineShownAsWrittenIsBroken();
};
