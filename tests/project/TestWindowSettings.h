#pragma once

#include <QObject>

class TestWindowSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstRunShowsEmptyBoxesAndTheDefaultEditors();
    void whatIsSavedIsLoaded();
    void aMissingChoiceOfSeveralRecipientsTakesTheReceipts();
    void trailingBlanksAndAccentsStay();
    void aFileThatOnlyBeginsAsUtf8LosesNothing();
};
