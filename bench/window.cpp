// How the window holds up: what a run costs with it, and for how long it stands still.
//
//     bench_window start SINCE             paints the window
//     bench_window run PROJECT SINCE       sends the project
//     bench_window list PROJECT SINCE      opens the project, sorts, selects, checks, removes
//     bench_window book SINCE              opens the first address book, searches, sorts, saves
//
// SINCE is when the program was started, in nanoseconds of the monotonic clock. Prints one line of
// JSON. A stall is the time from which on the event loop handles one event until it is through with
// it. Times are in seconds.

#include "app/Program.h"
#include "ui/RecipientView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <chrono>
#include <cstdio>

#include <sys/resource.h>

namespace {

double processorTime()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Since the program was started, with what is done before main().
double secondsSince(const QString &start)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now - std::chrono::nanoseconds(start.toLongLong()))
        .count();
}

/// Times every event.
class TimingApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        ++m_depth;
        QElapsedTimer timer;
        timer.start();
        const bool handled = QApplication::notify(receiver, event);
        m_longest = std::max(m_longest, static_cast<double>(timer.nsecsElapsed()) / 1e9);
        --m_depth;
        return handled;
    }
    /// The longest stall since the last call.
    double takeLongest() { return std::exchange(m_longest, 0.0); }

private:
    int m_depth = 0;
    double m_longest = 0;
};

/// Runs the event loop until the widget has been painted.
class PaintWait : public QObject
{
public:
    explicit PaintWait(QWidget &widget) { widget.installEventFilter(this); }

    void wait()
    {
        m_painted = false;
        while (!m_painted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

/// Handles events for that long, in milliseconds.
void handleEvents(int duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

void measureStart(const QString &since)
{
    Program program(Language::English, [] {});
    program.window->Form_Load({});
    PaintWait paint(*program.window);
    program.window->show();
    paint.wait();
    std::printf("{\"painted\": %.4f}\n", secondsSince(since));
}

void measureRun(TimingApplication &application, const QString &project)
{
    Program program(Language::English, [] {});
    program.window->Form_Load(project);
    program.window->show();
    constexpr int Settling = 1000;
    handleEvents(Settling);

    application.takeLongest();
    const double processorBefore = processorTime();
    QElapsedTimer timer;
    bool failed = false;
    QEventLoop loop;
    QObject::connect(&program.workspace.engine, &SendingEngine::runEnded, &loop, &QEventLoop::quit);
    QObject::connect(&program.workspace.engine, &SendingEngine::runFailed, &loop, [&] {
        failed = true;
        loop.quit();
    });
    timer.start();
    QTimer::singleShot(0, program.window->findChild<QPushButton *>(QStringLiteral("cmdAvvio")),
                       &QPushButton::click);
    loop.exec();
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const double processor = processorTime() - processorBefore;
    std::printf("{\"processor\": %.4f, \"seconds\": %.4f, \"longest\": %.4f, \"failed\": %s}\n",
                processor, seconds, application.takeLongest(), failed ? "true" : "false");
}

void measureList(TimingApplication &application, const QString &project, const QString &since)
{
    Program program(Language::English, [] {});
    program.window->Form_Load(project);
    program.window->show();
    auto &view = *program.window->findChild<RecipientView *>(QStringLiteral("lstDestinatari"));
    PaintWait paint(*view.viewport());
    paint.wait();
    std::printf("{\"painted\": %.4f", secondsSince(since));

    constexpr int Settling = 500;
    const auto stallOf = [&](const char *action, auto work) {
        handleEvents(Settling);
        application.takeLongest();
        QTimer::singleShot(0, &view, work);
        handleEvents(Settling);
        std::printf(", \"%s\": %.4f", action, application.takeLongest());
    };
    const auto press = [&](const char *name) {
        return [&program, name] {
            program.window->findChild<QPushButton *>(QLatin1String(name))->click();
        };
    };
    const auto sortBy = [&](int section) {
        return [&view, section] { Q_EMIT view.header()->sectionClicked(section); };
    };
    stallOf("sort by name", sortBy(1));
    stallOf("sort by address", sortBy(2));
    stallOf("sort by state", sortBy(3));
    stallOf("sort by name, half of them selected", [&] {
        view.selectWhere([](const Recipient &row) { return stateOf(row) == RowState::Sent; });
        Q_EMIT view.header()->sectionClicked(1);
    });
    stallOf("select by state", [&] {
        view.selectWhere([](const Recipient &row) { return stateOf(row) == RowState::Waiting; });
    });
    stallOf("select by another state", [&] {
        view.selectWhere([](const Recipient &row) { return stateOf(row) == RowState::Sent; });
    });
    stallOf("uncheck", press("cmdUncheckAll"));
    stallOf("check", press("cmdCheckAll"));
    stallOf("remove", press("cmdRemove"));
    stallOf("select all", [&] { view.selectAll(); });
    stallOf("remove all", press("cmdRemove"));
    std::printf("}\n");
}

void measureBook(TimingApplication &application)
{
    Program program(Language::English, [] {});
    program.window->Form_Load({});
    program.window->show();
    constexpr int Settling = 500;
    handleEvents(Settling);
    QElapsedTimer opening;
    opening.start();
    program.window->findChild<QAction *>(QStringLiteral("mnuRubrica"))->trigger();
    auto &list = *program.window->findChild<QTreeView *>(QStringLiteral("Elenco"));
    PaintWait paint(*list.viewport());
    paint.wait();
    std::printf("{\"contacts\": %d, \"open\": %.4f", list.model()->rowCount(),
                static_cast<double>(opening.nsecsElapsed()) / 1e9);

    auto &find = *program.window->findChild<QLineEdit *>(QStringLiteral("txtFind"));
    const auto stallOf = [&](const char *action, auto work) {
        handleEvents(Settling);
        application.takeLongest();
        QTimer::singleShot(0, &list, work);
        handleEvents(Settling);
        std::printf(", \"%s\": %.4f", action, application.takeLongest());
    };
    const auto type = [&](const QString &words) { return [&find, words] { find.setText(words); }; };
    stallOf("find the first letter", type(QStringLiteral("c")));
    stallOf("find a word", type(QStringLiteral("contact")));
    stallOf("find two words", type(QStringLiteral("contact 77")));
    stallOf("find all again", type({}));
    const auto sortBy = [&](int section) {
        return [&list, section] { Q_EMIT list.header()->sectionClicked(section); };
    };
    stallOf("sort by name", sortBy(0));
    stallOf("sort by address", sortBy(1));
    stallOf("select all", [&] { list.selectAll(); });
    stallOf("find with all selected", type(QStringLiteral("7")));
    stallOf("save and close", [&program] {
        program.window->findChild<QPushButton *>(QStringLiteral("cmdClose"))->click();
    });
    std::printf("}\n");
}

} // namespace

int main(int argc, char **argv)
{
    TimingApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    const QString mode = arguments.value(0);
    if (arguments.size() == 2 && mode == QLatin1String("start")) {
        measureStart(arguments[1]);
    } else if (arguments.size() == 3 && mode == QLatin1String("run")) {
        measureRun(application, arguments[1]);
    } else if (arguments.size() == 3 && mode == QLatin1String("list")) {
        measureList(application, arguments[1], arguments[2]);
    } else if (arguments.size() == 2 && mode == QLatin1String("book")) {
        measureBook(application);
    } else {
        std::fputs("bench_window start|book SINCE, or run|list PROJECT SINCE\n", stderr);
        return 2;
    }
    return 0;
}
