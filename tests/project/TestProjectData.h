#pragma once

#include <QObject>

class TestProjectData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProjectIsWrittenLineByLine();
    void whatIsWrittenIsReadBack();
    void withoutAttachmentsFiveLinesAreEmpty();
    void anotherTagIsRefused_data();
    void anotherTagIsRefused();
    void aSenderNameWithACommaShiftsTheHeader();
    void aRecipientNameWithACommaStays();
    void theCheckWordIsReadInAnyLetterCase_data();
    void theCheckWordIsReadInAnyLetterCase();
    void numbersAreLenient();
    void anEmptyChoiceOfSeveralRecipientsIsYes();
    void aQuotedFieldRunsToItsQuote();
    void aLineEndInAFieldDoesNotTearTheFile();
    void aQuotedFieldMayRunOverLines();
    void anyLineEndIsRead_data();
    void anyLineEndIsRead();
    void anExampleCutAtEveryCharacter();
};
