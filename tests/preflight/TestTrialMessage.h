#pragma once

#include <QObject>

/// A message made outside any run, and that it leaves everything else alone.
class TestTrialMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowIsComposedWithItsName();
    void noRowIsAMessageWithoutAName();
    void groupsMakeNoDifference();
    void nothingOfTheMessageBeforeIsLeft();
    void attachmentsDoNotPileUp();
    void picturesGetTheirContentIdsInItsOwnClient();
    void theWorkingFolderOfAPausedRunStays();
    void aMessageFileThatIsMissingIsAReason();
    void whyAMessageCannotBeBuiltIsSaid();
    void theRunAndTheProjectAreLeftAlone();
    void servers_data();
    void servers();
};
