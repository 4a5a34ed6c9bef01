#pragma once

#include <QObject>

/// The recipient list itself.
class TestRecipientList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmptyAndSortedByNumber();
    void rowsAreCountedFromOne();
    void rowKeepsItsIdentityWhereverItMoves();
    void identitiesAreNeverUsedTwice();
    void checkedRowsAreCountedFromAPosition();
    void positionsOfChosenRowsAreAscending();
    void sortIgnoresLetterCase();
    void sortFollowsTheLocale();
    void sortIsStableInBothOrders();
    void sortTakesTheTextOfTheColumn_data();
    void sortTakesTheTextOfTheColumn();
    void numbersAreSortedAsTexts();
    void stateChangesNeverSort();
    void addingAtTheEndDoesNotSort();
    void replacingKeepsTheOrderAndForgetsTheSort();
    void removedRowsCloseUp();
    void numberingFollowsThePositions();
    void changesAreSaidByPosition();
    void currentRowIsForgottenWithItsRow();
};
