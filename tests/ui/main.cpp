#include "TestAccountTrial.h"
#include "TestAccountWindow.h"
#include "TestAddressBookWindow.h"
#include "TestBookChooser.h"
#include "TestBoxes.h"
#include "TestCheckWindow.h"
#include "TestContactEditor.h"
#include "TestControls.h"
#include "TestDetailsWindow.h"
#include "TestDialogs.h"
#include "TestDigitsEdit.h"
#include "TestDrops.h"
#include "TestHtmlView.h"
#include "TestLoginBox.h"
#include "TestMainWindow.h"
#include "TestPreview.h"
#include "TestRecipientList.h"
#include "TestRunBarWindow.h"
#include "TestRunSeen.h"
#include "TestTestMessageBox.h"
#include "TestWindowPrompts.h"
#include "support/RunTests.h"

#include <QApplication>

int main(int argc, char **argv)
{
    return runTestsIn<QApplication, TestBoxes, TestControls, TestDigitsEdit, TestWindowPrompts,
                      TestRecipientList, TestRunBarWindow, TestRunSeen, TestMainWindow, TestDialogs,
                      TestDrops, TestHtmlView, TestPreview, TestLoginBox, TestAccountWindow,
                      TestAccountTrial, TestAddressBookWindow, TestBookChooser, TestContactEditor,
                      TestCheckWindow, TestDetailsWindow, TestTestMessageBox>(argc, argv);
}
