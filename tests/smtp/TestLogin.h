#pragma once

#include <QObject>

/// Who logs in when, how, and what a refusal leads to.
class TestLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogue_data();
    void dialogue();
    void noPasswordOnALineThatOthersCanRead();
    void refusalInPlainWords_data();
    void refusalInPlainWords();
    void unverifiedCertificateGetsNoPassword();
    void noClearLineAfterAHangUpDuringTheQuestion();
    void trustInOneCertificateIsNoneInAnotherAfterAHangUp();
    void messageHeldForALoginIsGivenUpByDisconnect();
    void repliesAheadOfAHeldMessageAreOutOfStep();
    void veryManyMechanismsDoNoHarm();
    void resetDropsTheQuestion();
    void messageHeldForALoginIsNotTakenWhenNoneIsKnown();
    void traceIsWholeToTheEnd();
    void traceHidesSecrets_data();
    void traceHidesSecrets();
    void errorHidesWhatTheServerRepeats();
    void secretsInEveryForm();
    void plainWordsAreNoServersWords();
    void traceIsOffUnlessWanted();
};
