#pragma once

#include <QObject>

/// What the address book window does with contacts.
class TestContacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewContactStandsAtTheEndWithItsDisplayName();
    void anEditedContactKeepsItsRow();
    void threeDeletedOfFiveLeaveTwo();
    void deletingContactsCanBeCancelled();
    void deletingNothingAsksNothing();
    void contactsOfAnotherProgramAreImported();
    void whatCouldNotBeImportedIsSaid();
    void aFileThatCannotBeImportedIsSaid();
    void noFileImportsNothing();
};
