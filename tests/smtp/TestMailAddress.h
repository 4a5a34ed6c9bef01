#pragma once

#include <QObject>

/// Addresses as people write them, and names for EHLO.
class TestMailAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usable_data();
    void usable();
    void unusable_data();
    void unusable();
    void ehloName_data();
    void ehloName();
};
