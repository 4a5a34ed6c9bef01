#pragma once

#include <QObject>

/// What the client tells the engine, and when.
class TestClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badTarget_data();
    void badTarget();
    void nothingListens();
    void descriptions_data();
    void descriptions();
    void doneAndReadyComeTogether();
    void disconnectInsideDone();
    void connectInsideDone();
    void disconnectInsideErrorDropsTheConnectThatWaits();
    void repliesAreReadableInsideTheEventOnly();
    void statusFlag();
    void messageThatCannotBeBuilt();
    void messageThatCannotBeBuiltBeforeTheSessionIsReady();
    void messageThatIsTooLarge();
    void serverClosesWhileTheEngineSends();
    void nobodyCanBeWrittenTo_data();
    void nobodyCanBeWrittenTo();
    void quitIsNotWaitedFor();
    void clientIsDestroyedAtAnyTime();
    void compose();
    void composingBeginsANewSetOfInlineFiles();
    void fullHostName();
};
