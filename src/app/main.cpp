#include "base/CodePage.h"
#include "base/HelpPages.h"
#include "base/Host.h"
#include "base/Interrupts.h"
#include "base/ProgramFolder.h"
#include "base/RegionalFormats.h"
#include "settings/IOReg.h"
#include "settings/RegFileStore.h"
#include "settings/Settings.h"
#include "smtp/client/HostName.h"
#include "smtp/client/SmtpClient.h"
#include "ui/DesktopShell.h"
#include "ui/WindowPrompts.h"
#include "ui/frmMain.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdlib>

namespace {

// Everything that lives as long as the window; never destroyed, since the process ends at once.
struct Program
{
    explicit Program(Language language)
        : workspace({language, prompts, AppLog, settings, SMTP, clock, formats, codePage, Timer,
                     Timer2, folder, computerName()})
    {}

    SystemClock clock;
    SystemFormats formats;
    CodePage codePage = CodePage::ofSystem();
    QString folder = programFolder();
    RegFileStore settings{RegFileStore::defaultFile()};
    CLog AppLog{folder, clock, formats, codePage};
    SmtpClient SMTP{clock, {}, ownHostName()};
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    WindowPrompts prompts;
    DesktopShell shell;
    Workspace workspace;
};

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
    auto *const program = new Program(language);
    const WindowParts parts{program->workspace,
                            program->prompts,
                            program->shell,
                            program->folder,
                            folderOfHelp(program->folder, QCoreApplication::applicationDirPath()),
                            endProcess,
                            WindowPlace::defaultFile()};
    frmMain *const window =
        language == Language::Italian ? new frmMainIta(parts) : new frmMain(parts);
    program->prompts.setWindow(window);
    // Questions about a project or a run that is gone close by themselves, once the procedure that
    // ended it is through.
    const Form &form = program->workspace.form;
    QObject::connect(&form, &Form::situationChanged, &program->prompts, &WindowPrompts::closeStale,
                     Qt::QueuedConnection);
    QObject::connect(&form, &Form::runStateChanged, &program->prompts, &WindowPrompts::closeStale,
                     Qt::QueuedConnection);
    window->Form_Load(projectOfCommandLine(QCoreApplication::arguments().sliced(1)));
    window->show();
    QObject::connect(&interrupts, &Interrupts::interrupted, window, &frmMain::endSession);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, window,
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
