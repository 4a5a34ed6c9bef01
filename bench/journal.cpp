// What keeping a run on the disk costs.
//
//     bench_journal with|without PROJECT FOLDER
//
// Sends the project, with a record of the run in that folder or without one. Prints one line of
// JSON with the processor time from Start to the end, in seconds.

#include "app/Connections.h"
#include "base/RegionalFormats.h"
#include "journal/RunJournal.h"
#include "project/Workspace.h"
#include "settings/RegFileStore.h"

#include <QCoreApplication>
#include <QTimer>

#include <sys/resource.h>

#include <cstdio>
#include <optional>

namespace {

/// Nobody is asked, and what the boxes say goes to standard error.
class PrintingPrompts : public Prompts
{
public:
    void notice(const Notice &notice) override
    {
        std::fprintf(stderr, "%s %s\n", qPrintable(notice.text), qPrintable(notice.detail));
    }
    void ask(const Question &, Stands, std::function<void(Answer)>) override {}
    void askText(const InputBox &, Stands, std::function<void(QString)>) override {}
    void askFile(const FileDialog &, Stands, std::function<void(QString)>) override {}
};

/// Of all threads.
double processorTime()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (argc != 4 || (arguments[1] != u"with" && arguments[1] != u"without")) {
        std::fputs("bench_journal with|without PROJECT FOLDER\n", stderr);
        return 2;
    }
    const QString &folder = arguments[3];
    const SystemClock clock;
    const SystemFormats formats;
    const CodePage codePage = CodePage::ofSystem();
    RegFileStore settings((folder + QStringLiteral("/settings.reg")).toStdString());
    PrintingPrompts prompts;
    CLog AppLog(folder, clock, formats, codePage);
    Connections connections({clock, settings, codePage, prompts, nullptr, folder});
    SystemSecondTimer Timer;
    SystemSecondTimer Timer2;
    Workspace workspace({Language::English, prompts, AppLog, settings, connections.SMTP, clock,
                         formats, codePage, Timer, Timer2, folder, QStringLiteral("bench")});
    GroupedSync sync;
    std::optional<RunJournal> journal;
    if (arguments[1] == u"with") {
        journal.emplace(JournalParts{workspace.form, workspace.recipients, workspace.engine,
                                     workspace.projectFile, prompts, AppLog, clock, codePage, sync,
                                     folder});
    }
    workspace.projectCommands.open(arguments[2]);
    workspace.form.setProjectModified(false);
    const double before = processorTime();
    QObject::connect(&workspace.engine, &SendingEngine::runEnded, [before, &journal] {
        if (journal)
            journal->rowsSeen();
        std::printf("{\"processor\": %.4f}\n", processorTime() - before);
        QCoreApplication::exit(0);
    });
    QObject::connect(&workspace.engine, &SendingEngine::runFailed,
                     [] { QCoreApplication::exit(1); });
    QTimer::singleShot(0, &workspace.engine, &SendingEngine::cmdAvvio_Click);
    return QCoreApplication::exec();
}
