#pragma once

#include <QObject>

/// The table of the settings.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableHoldsEverySettingInItsKind();
    void defaultsAreThoseOfTheTable();
    void unknownNameIsNotFound();
};
