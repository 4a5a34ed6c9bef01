#pragma once

#include <QObject>

class TestServerCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aServerThatIsWellIsSaidStepByStep();
    void aServerThatEndsEarlyIsAnError();
    void theServersWordsCannotDriveTheTerminal();
    void ctrlCGivesItUp();
    void ctrlCBehindTheEndChangesNothing();
};
