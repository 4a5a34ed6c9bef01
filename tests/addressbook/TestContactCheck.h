#pragma once

#include <QObject>

/// What the contact editor refuses.
class TestContactCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aContactNeedsANameOrACompanyAndAnAddress_data();
    void aContactNeedsANameOrACompanyAndAnAddress();
    void textsOfTheRefusals_data();
    void textsOfTheRefusals();
};
