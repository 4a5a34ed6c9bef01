#pragma once

#include <QObject>

class TestTestCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstRowsMessageGoesToTheSender();
    void addressAndRowCanBeChosen();
    void aProjectWithoutRowsSendsAMessageWithoutAName();
    void aRefusalIsAResult();
    void aSessionThatFailsIsAnError();
    void aRowThatIsNotThereIsNotBegun();
    void aMessageFileThatIsMissingIsNotBegun();
    void withoutAnAddressNothingIsBegun();
    void theProjectStaysAsItIs();
    void ctrlCGivesItUp();
};
