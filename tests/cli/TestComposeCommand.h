#pragma once

#include <QObject>

class TestComposeCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowsMessageIsPrinted();
    void aRowThatIsNotThereIsRefused();
    void whyThereIsNoMessageIsSaid();
};
