#include "TestDigitsEdit.h"
#include "TestMainWindow.h"
#include "support/RunTests.h"

#include <QApplication>

int main(int argc, char **argv)
{
    return runTestsIn<QApplication, TestDigitsEdit, TestMainWindow>(argc, argv);
}
