#pragma once

#include <QObject>

/// What the main window shows, without a window.
class TestForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsAsItWasDesigned();
    void beginsInItalianInItalian();
    void textTagAndCheckAreKeptApart();
    void editsOfTheProjectSetTheFlag_data();
    void editsOfTheProjectSetTheFlag();
    void sameTextIsNoEdit();
    void tagIsNoEdit();
    void receiptIsAnEditAndSendingToSeveralIsNot();
    void flagIsClearedOnlyWhenTold();
    void eachChangeIsSaidOnce();
    void pauseTagFollowsTheRunState();
    void runStateIsSaidWhenItChanges();
    void controlsAreEnabledByTheRunState();
    void captionIsSaid();
    void situationCountsProjectsAndRuns();
};
