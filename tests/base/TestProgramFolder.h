#pragma once

#include <QObject>

/// Where the log, the address books and the working folder lie.
class TestProgramFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void besideTheProgramWhenTheUserMayWriteThere();
    void inTheUsersDataFolderElse();
    void inTheUsersDataFolderWhenTheProgramIsInstalled();
};
