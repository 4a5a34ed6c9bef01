#include "app/Program.h"
#include "base/Interrupts.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdlib>

namespace {

Language chosenLanguage()
{
    RegFileStore settings(RegFileStore::defaultFile());
    IOReg reg(settings);
    reg.Init(CurrentUserRoot, Settings::Folder);
    std::int32_t language = 0;
    reg.ReadInt(Settings::Language, language);
    return language > 0 ? Language::Italian : Language::English;
}

// The program's Italian texts and those of Qt's own buttons and dialogs.
void speakItalian(QCoreApplication &application)
{
    auto *const own = new QTranslator(&application);
    if (own->load(QStringLiteral(":/i18n/sorvanta_it.qm")))
        QCoreApplication::installTranslator(own);
    auto *const ofQt = new QTranslator(&application);
    if (ofQt->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(ofQt);
}

// No event handler and no destructor runs behind this.
void endProcess()
{
    std::_Exit(EXIT_SUCCESS);
}

void Main(QApplication &application, Interrupts &interrupts)
{
    const Language language = chosenLanguage();
    if (language == Language::Italian)
        speakItalian(application);
    // Never destroyed: the process ends at once.
    frmMain &window = *(new Program(language, endProcess))->window;
    window.Form_Load(projectOfCommandLine(QCoreApplication::arguments().sliced(1)));
    window.show();
    QObject::connect(&interrupts, &Interrupts::interrupted, &window, &frmMain::endSession);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     &frmMain::endSession);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("sorvanta"));
    Interrupts interrupts;
    Main(application, interrupts);
    return QApplication::exec();
}
