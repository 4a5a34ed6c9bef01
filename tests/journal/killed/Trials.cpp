#include "Trials.h"

#include "Mailing.h"
#include "Steps.h"

#include <QCoreApplication>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

std::string addressOf(int number)
{
    return "r" + std::to_string(number) + "@list.example";
}

} // namespace

bool Trials::Ended::wasKilled() const
{
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

bool Trials::Ended::isDone() const
{
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS && said.ends_with("done\n");
}

std::set<std::string> Trials::Ended::linesBehind(std::string_view start) const
{
    std::set<std::string> found;
    std::istringstream lines(said);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(start))
            found.insert(line.substr(start.size()));
    }
    return found;
}

Trials::Trials(const Setting &setting, std::filesystem::path folder)
    : m_setting(setting), m_server(setting.offer), m_folder(std::move(folder)), m_project(project())
{}

int Trials::recipientsOfMessage() const
{
    constexpr int OfGroup = 5;
    return m_setting.addressing == Setting::Addressing::Groups ? OfGroup : 1;
}

std::string Trials::project() const
{
    constexpr int Packets = 4;
    const bool isGroup = m_setting.addressing == Setting::Addressing::Groups;
    ProjectData data;
    data.server = QStringLiteral("127.0.0.1:%1").arg(m_server.port());
    data.senderName = QStringLiteral("The Club");
    data.senderAddress = QStringLiteral("club@list.example");
    data.textPath = QString::fromStdString(path("letter.txt"));
    data.subject = QStringLiteral("News");
    data.messagesPerPacket =
        QString::number(isGroup ? recipientsOfMessage() : Recipients / Packets);
    data.delayMinutes = QStringLiteral("0");
    data.multiSend = isGroup;
    for (int number = 1; number <= Recipients; ++number) {
        Recipient row;
        row.number = QString::number(number);
        row.name = QStringLiteral("Name %1").arg(number);
        row.address = QString::fromStdString(addressOf(number));
        row.state = stateWord(RowState::Waiting, Language::English);
        data.recipients.push_back(row);
    }
    return CodePage("windows-1252").encode(encodeProject(data)).toStdString();
}

// The folder holds the project and its message, and nothing else.
void Trials::prepare()
{
    std::filesystem::remove_all(m_folder);
    std::filesystem::create_directories(m_folder);
    std::ofstream(path("letter.txt")) << "Dear *NOME*,\r\n\r\nhello.\r\n";
    std::ofstream(path("mailing.svk"), std::ios::binary) << m_project;
    static_cast<void>(m_server.takeCounts());
}

bool Trials::killAt(int step)
{
    prepare();
    if (m_setting.killedBefore != Never) {
        const Ended before = send(m_setting.killedBefore);
        if (!before.wasKilled())
            complain("was not killed before", before);
    }
    const Ended killed = send(step);
    m_moment = "step " + std::to_string(step) + ", " + killed.said;
    m_tally.kills += killed.wasKilled() ? 1 : 0;
    const Ended ended = killed.wasKilled() ? send(Never) : killed;
    if (ended.isDone())
        check(ended);
    else
        complain("it does not come to its end", ended);
    return killed.wasKilled() && m_tally.complaints == 0;
}

Trials::Ended Trials::send(int fatalStep)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0)
        std::abort();
    const Descriptor reading(pipe[0]);
    const pid_t process = ::fork();
    if (process == 0)
        sendAndExit(pipe[1], fatalStep);
    ::close(pipe[1]);
    Ended ended;
    ended.said = m_server.serve(reading);
    ::waitpid(process, &ended.status, 0);
    return ended;
}

void Trials::sendAndExit(int report, int fatalStep) const
{
    constexpr unsigned Patience = 60; // seconds; no run takes as many
    ::alarm(Patience);
    Steps::count(fatalStep, report);
    std::array<char, 1> name{};
    std::array<char *, 2> arguments{name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments.data());
    PromptSync sync;
    {
        Mailing mailing(QString::fromStdString(m_folder), sync, [report](const QString &line) {
            ::dprintf(report, "%s\n", qPrintable(line));
        });
        QObject::connect(&mailing, &Mailing::ended, &application, &QCoreApplication::quit,
                         Qt::QueuedConnection);
        mailing.send(QString::fromStdString(path("mailing.svk")));
        QCoreApplication::exec();
    }
    ::_exit(EXIT_SUCCESS);
}

void Trials::check(const Ended &ended)
{
    const auto counts = m_server.takeCounts();
    const auto inDoubt = ended.linesBehind("in doubt: ");
    const int messages = m_setting.killedBefore == Never ? 1 : 2;
    if (static_cast<int>(inDoubt.size()) > messages * recipientsOfMessage())
        complain("more are in doubt than a message has recipients", ended);
    for (const std::string &left : ended.linesBehind("left: "))
        complain("not sent: " + left, ended);
    for (int number = 1; number <= Recipients; ++number) {
        const std::string address = addressOf(number);
        const auto count = counts.find(address);
        const int received = count == counts.end() ? 0 : count->second;
        const bool isDoubtful = inDoubt.contains(address);
        m_tally.inDoubtAndReceived += isDoubtful && received > 0 ? 1 : 0;
        m_tally.inDoubtAndNot += isDoubtful && received == 0 ? 1 : 0;
        if (received > 1 || (received == 0 && !isDoubtful))
            complain(address + " got it " + std::to_string(received) + " times", ended);
    }
    for (const auto &file : std::filesystem::directory_iterator(m_folder / "Runs")) {
        if (file.path().extension() == ".run")
            complain("a record is left: " + file.path().string(), ended);
    }
}

void Trials::complain(const std::string &what, const Ended &ended)
{
    ++m_tally.complaints;
    std::fprintf(stderr, "%s, %s%s; status %d, and it said:\n%s\n", m_setting.name,
                 m_moment.c_str(), what.c_str(), ended.status, ended.said.c_str());
}
