#pragma once

#include <QObject>

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasItsWidget();
    void picture();
};
