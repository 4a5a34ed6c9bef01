#pragma once

#include <QObject>

/// The lines of vCards and their parts.
class TestVCardLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesEnd();
    void foldsAreUndone_data();
    void foldsAreUndone();
    void textIsDecoded_data();
    void textIsDecoded();
    void escapesAreUndone_data();
    void escapesAreUndone();
    void partsOfALine();
    void lineWithoutColonIsNothing();
    void quoteThatIsNeverClosedIsACharacter();
    void componentsAreParted();
    void lowestNumberIsPreferred();
};
