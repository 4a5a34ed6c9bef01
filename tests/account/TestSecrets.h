#pragma once

#include <QObject>

/// Where passwords must not be.
class TestSecrets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void searchFindsWhatIsThere();
    void noWayOfALoginLeavesItsPasswordBehind();
};
