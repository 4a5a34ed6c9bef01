#pragma once

#include "WindowTest.h"

class TestMainWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasItsWidget();
    void picture();
};
