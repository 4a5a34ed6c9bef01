#pragma once

#include <QObject>

/// The user's formats of date, time and numbers.
class TestRegionalFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainLocaleHasDayMonthYear();
    void plainLocaleHas24Hours();
    void plainLocaleHasAPoint();
};
