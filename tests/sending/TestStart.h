#pragma once

#include <QObject>

class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data();
    void refusals();
    void anInvalidSenderIsReportedBeforeTheControlAddress();
    void anInvalidControlAddressIsRefused();
    void aNegativePacketSizePasses();
    void aTypedHtmlTextWithoutAFilePassesTheCheckAndEndsWhenItIsLoaded();
    void linkedPicturesThatWillNotTravelAreAskedAbout();
    void noToThePicturesStartsNothing();
    void savingIsOfferedOnlyForAModifiedProject();
    void theAnswerNoStartsAndTheFlagStays();
    void cancelStartsNothing();
    void aSaveThatFailsStartsNothing();
    void aCancelledSaveAsGoesOn();
    void anAnswerForAnotherProjectChangesNothing();
    void everyRowIsResetAndOnlyCheckedOnesAreCounted();
    void theControlRowComesAndGoes();
    void theControlRowGoesWhenAMessageFileIsMissing();
    void aVanishedMessageFileEndsTheStart_data();
    void aVanishedMessageFileEndsTheStart();
    void anHtmlFileWhoseTextWasEmptiedSendsNoHtml();
    void theRunIsArmedForTheNextTick();
    void aStartedRunCannotBeStartedAgain();
    void serverAndPort_data();
    void serverAndPort();
    void aPortThatIsNoNumberIsAnErrorOfTheSession_data();
    void aPortThatIsNoNumberIsAnErrorOfTheSession();
    void connectingIsLogged();
};
