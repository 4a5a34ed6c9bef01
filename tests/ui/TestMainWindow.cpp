#include "TestMainWindow.h"

#include "WindowRig.h"

using namespace Qt::StringLiterals;

void TestMainWindow::everyControlHasItsWidget()
{
    WindowRig rig;
    rig.show();
    QCOMPARE(rig.window->objectName(), u"frmMain"_s);
}

void TestMainWindow::picture()
{
    for (const Language language : {Language::English, Language::Italian}) {
        WindowRig rig(language);
        rig.core->fillForm(40);
        rig.show();
        rig.core->fillForm(40);
        QCoreApplication::processEvents();
        rig.window->grab().save(language == Language::English ? u"/tmp/en.png"_s
                                                              : u"/tmp/it.png"_s);
    }
}
