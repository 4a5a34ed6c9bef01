#pragma once

#include <QObject>

/// Names for the files of books.
class TestBookNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void charactersThatFileNamesMustNotHaveAreLeftOut();
    void aNameThatIsTakenGetsANumber();
    void namesAreTakenByFoldersToo();
};
