#pragma once

#include <QObject>

/// The values of an account as texts.
class TestAccountValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyValueHasItsNameAndItsDefault();
    void whatIsSetIsRead_data();
    void whatIsSetIsRead();
    void whatMakesNoSenseIsRefusedAndChangesNothing_data();
    void whatMakesNoSenseIsRefusedAndChangesNothing();
    void unknownNameIsNeitherReadNorSet();
    void emptyTextForgets();
};
