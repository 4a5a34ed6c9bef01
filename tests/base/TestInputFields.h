#pragma once

#include <QObject>

/// Reading comma-delimited input.
class TestInputFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_data();
    void fields();
    void quoteThatIsNeverClosedIsNoField();
    void wholeLineIsLeftAsItIs();
    void wholeLineAfterAFieldBeginsBehindItsComma();
    void endOfTheTextGivesNothing();
    void cutIsTheEndOfTheTextAlone();
};
