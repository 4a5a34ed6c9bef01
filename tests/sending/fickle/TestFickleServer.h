#pragma once

#include <QObject>

/// Runs against a server that refuses, breaks off, lingers, babbles and falls silent at any step,
/// until everybody has the message or may have it.
class TestFickleServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowSaysWhatBecameOfItsMessage();
};
