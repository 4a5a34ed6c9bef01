#include "TestRunNotification.h"
#include "TestSleepInhibitor.h"
#include "support/RunTests.h"

#include <QApplication>

int main(int argc, char **argv)
{
    // The one bus of the test is the system's too.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    return runTestsIn<QApplication, TestSleepInhibitor, TestRunNotification>(argc, argv);
}
