#pragma once

#include <QObject>

/// The bar under the recipient list, without a window.
class TestRunBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatItShowsFollowsTheCheckedRows_data();
    void whatItShowsFollowsTheCheckedRows();
    void uncheckedRowsCountWhereARunHasComeToThem();
    void whoIsInDoubtIsNeverLostFromIt();
    void thoseSentAreUncheckedWhereAnyIsChecked();
    void itSaysTheNumbersAsTheLanguageWritesThem();
    void thereIsNoneWhileARunIsShown_data();
    void thereIsNoneWhileARunIsShown();
    void changesOfManyRowsAreOneChangeOfTheBar();
    void rowsOfAnotherProjectReplaceIt();
    void uncheckingThoseSentUnchecksThoseInDoubtToo();
    void afterUncheckingThoseSentStartReachesTheRest();
    void aStartThatReachedNobodyRemembersTheRunBefore();
    void aStartThatDidNotComeToThemRemembersTheRunBefore();
    void checkingTheRefusedUnchecksAllOthers();
    void rowsThatAreAsTheyShouldBeKeepTheirPictures();
    void theRestIsWhoIsCheckedAndWaits();
};
