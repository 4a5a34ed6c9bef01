// How long a list of recipients takes to import, and a project to load and to save.
//
//     bench_lists RECIPIENTS_FILE PROJECT_FILE
//
// Imports the first, which may be written in any order, loads the second, and saves it beside
// itself. Prints one line of JSON with the seconds of each.

#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/Files.h"
#include "base/RegionalFormats.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "project/ProjectData.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"
#include "recipients/RecipientsFile.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

namespace {

/// Nobody is asked, and what the boxes say goes to standard error.
class PrintingPrompts : public Prompts
{
public:
    void notice(const Notice &notice) override
    {
        std::fprintf(stderr, "%s\n", qPrintable(notice.text));
    }
    void ask(const Question &, Stands, std::function<void(Answer)>) override {}
    void askText(const InputBox &, Stands, std::function<void(QString)>) override {}
    void askFile(const FileDialog &, Stands, std::function<void(QString)>) override {}
};

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fputs("bench_lists RECIPIENTS_FILE PROJECT_FILE\n", stderr);
        return 2;
    }
    const QString recipientsPath = QString::fromLocal8Bit(argv[1]);
    const QString projectPath = QString::fromLocal8Bit(argv[2]);
    const SystemClock clock;
    const SystemFormats formats;
    const CodePage codePage = CodePage::ofSystem();
    CLog log(clock, formats, codePage);
    PrintingPrompts prompts;
    Form form(Language::English);
    RecipientList list;
    RecipientsFile importer(form, list, prompts, log, codePage, {});

    const double import = secondsOf([&] { importer.SetRecipientsFile(recipientsPath); });
    const int imported = list.count();

    ProjectData project;
    const double load = secondsOf([&] {
        const auto content = readWholeFile(projectPath);
        auto data = decodeProject(codePage.decode(content.value_or(QByteArray())));
        if (!data)
            return;
        project = std::move(*data);
        list.replaceAll(project.recipients);
    });
    const int loaded = list.count();

    bool saved = false;
    const double save = secondsOf([&] {
        project.recipients = list.rows();
        saved = replaceWholeFile(projectPath + QStringLiteral(".saved"),
                                 codePage.encode(encodeProject(project)))
                    .has_value();
    });
    std::printf("{\"imported\": %d, \"import\": %.4f, \"loaded\": %d, \"load\": %.4f, "
                "\"saved\": %s, \"save\": %.4f}\n",
                imported, import, loaded, load, saved ? "true" : "false", save);
}
