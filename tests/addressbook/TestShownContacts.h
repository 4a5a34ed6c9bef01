#pragma once

#include <QObject>

/// Which contacts are shown, and in which order.
class TestShownContacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allAreShownInTheOrderOfTheFile();
    void aColumnSortsAndASecondClickTurnsItRound();
    void anotherColumnBeginsAscending();
    void sortingIgnoresCaseAndKeepsEqualOnes();
    void whatIsLookedForIsFoundInNameCompanyAndAddress_data();
    void whatIsLookedForIsFoundInNameCompanyAndAddress();
    void whatIsFoundStaysSorted();
    void changedContactsAreSortedAndFoundAnew();
    void aRowIsShownOrNot();
};
