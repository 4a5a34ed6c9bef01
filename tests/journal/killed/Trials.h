#pragma once

#include "TakingServer.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

/// How a run is sent that is killed.
struct Setting
{
    enum class Addressing { Singles, Groups };

    const char *name;
    TakingServer::Offer offer;
    Addressing addressing;
    /// The step at which it was killed already, before the process that is killed at every step.
    int killedBefore = 0;
};

/// What the runs of a setting met.
struct Tally
{
    int kills = 0;
    int inDoubtAndReceived = 0; ///< recipients
    int inDoubtAndNot = 0;
    int complaints = 0;
};

/// The runs of one setting, each in processes and a folder of its own. This process has no threads
/// and no application: it is forked.
class Trials
{
public:
    static constexpr int Recipients = 40;

    Trials(const Setting &setting, std::filesystem::path folder);

    /// Kills a run at its n-th step, lets it go on and looks who got the message. False when it
    /// came to its end without such a step, or when something was wrong, which is then said.
    [[nodiscard]] bool killAt(int step);
    [[nodiscard]] const Tally &tally() const { return m_tally; }

private:
    /// How a process ended, and what it said.
    struct Ended
    {
        int status = 0;
        std::string said;

        [[nodiscard]] bool wasKilled() const;
        [[nodiscard]] bool isDone() const;
        /// The rest of each line that begins so.
        [[nodiscard]] std::set<std::string> linesBehind(std::string_view start) const;
    };

    static constexpr int Never = 0;

    [[nodiscard]] int recipientsOfMessage() const;
    [[nodiscard]] std::string path(const char *name) const { return m_folder / name; }
    [[nodiscard]] std::string project() const;
    void prepare();
    [[nodiscard]] Ended send(int fatalStep);
    [[noreturn]] void sendAndExit(int report, int fatalStep) const;
    void check(const Ended &ended);
    void complain(const std::string &what, const Ended &ended);

    Setting m_setting;
    TakingServer m_server;
    std::filesystem::path m_folder;
    std::string m_project;
    std::string m_moment; ///< of the kill
    Tally m_tally;
};
