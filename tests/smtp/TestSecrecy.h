#pragma once

#include <QObject>

/// Where no password may ever come: to strangers, into a trace, into an error.
class TestSecrecy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noPasswordOnALineThatOthersCanRead();
    void unverifiedCertificateGetsNoPassword();
    void noClearLineAfterAHangUpDuringTheQuestion();
    void trustInOneCertificateIsNoneInAnotherAfterAHangUp();
    void traceIsWholeToTheEnd();
    void traceHidesSecrets_data();
    void traceHidesSecrets();
    void errorHidesWhatTheServerRepeats();
    void secretsInEveryForm();
    void plainWordsAreNoServersWords();
    void traceIsOffUnlessWanted();
};
