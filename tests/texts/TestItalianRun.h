#pragma once

#include <QObject>

/// The Italian texts where a user meets them, from the first refusal to the end of a run.
class TestItalianRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusalsOfStart_data();
    void refusalsOfStart();
    void titleOfTheLinkedPicturesStaysEnglish();
    void savingBeforeTheStart();
    void labelsAndEndOfARun();
    void statesOfTheRows();
    void stopQuestion();
    void boxOfTheServersErrorStaysEnglish();
    void bodyOfAMessageWithoutText();
    void captionOfAProjectWithoutAName();
    void logStaysEnglish();
};
