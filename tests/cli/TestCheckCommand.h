#pragma once

#include <QObject>

class TestCheckCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allIsWellOnceTheServerSaysSo();
    void everyFindingIsALine();
    void adviceAloneIsNoFailure();
    void aServerThatFailsIsAFailure();
    void offlineAsksNoServer();
    void aFileThatIsNoProjectIsRefused();
    void ctrlCGivesTheServerUp();
    void aPausedProjectIsHeldToWhatResumeRefuses();
};
