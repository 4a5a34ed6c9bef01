#pragma once

#include <QObject>

/// One contact of an address book.
class TestContact : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDisplayNameIsNameAndCompany_data();
    void theDisplayNameIsNameAndCompany();
    void eachColumnIsOfItsOwn();
};
