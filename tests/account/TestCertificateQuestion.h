#pragma once

#include <QObject>

/// The question about a certificate that does not verify.
class TestCertificateQuestion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void certificateIsShownWithAllThatTellsItApart();
    void yesTrustsItForTheHostThatShowedIt();
    void noChangesNothing();
    void otherFailuresAskNothing();
    void sameCertificateIsAskedAboutOnceAtATime();
    void textsOfAStrangerStayInTheirLine();
    void settingsThatCannotBeWrittenAreSaid();
    void answerCountsForNothingWhenNobodyTakesIt();
};
