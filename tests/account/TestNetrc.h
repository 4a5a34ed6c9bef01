#pragma once

#include <QObject>

/// Logins from a netrc file.
class TestNetrc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreRead_data();
    void entriesAreRead();
    void entryIsForItsHostAndUser_data();
    void entryIsForItsHostAndUser();
    void fileThatIsNotThereHasNoEntries();
    void fileThatOthersCanReadIsNotUsed_data();
    void fileThatOthersCanReadIsNotUsed();
    void fileOfItsOwnerIsUsed();
    void folderInItsPlaceIsNotUsed();
};
