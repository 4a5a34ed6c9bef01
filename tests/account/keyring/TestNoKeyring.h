#pragma once

#include <QObject>

/// A session without a keyring, or one whose answers cannot come.
class TestNoKeyring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsFoundAndNothingIsKept();
    void nothingIsWrittenInAnotherPlace();
};
