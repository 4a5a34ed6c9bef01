#pragma once

#include <QObject>

/// The rules of a recipients file, held against a second writing of them, for random files.
class TestRecipientsRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyFileIsImportedByTheRules();
    void anyAddressIsJudgedByTheRules();
};
