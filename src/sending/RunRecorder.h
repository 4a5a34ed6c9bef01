#pragma once

#include "sending/SendSession.h"

#include <functional>
#include <vector>

/// What became of one row of a message.
struct RowResult
{
    Outcome outcome = Outcome::None;
    ServerReply reply;

    bool operator==(const RowResult &) const = default;
};

/// Keeps a run on the disk while it goes, so that it survives whatever ends the program. The engine
/// asks before it does what cannot be undone: a run that cannot be recorded does not go on, since
/// what it sent would be known to nobody after a crash, and be sent again. Where an answer is no, a
/// notice has said why.
class RunRecorder
{
public:
    RunRecorder() = default;
    RunRecorder(const RunRecorder &) = delete;
    RunRecorder &operator=(const RunRecorder &) = delete;
    virtual ~RunRecorder() = default;

    /// A run wants to start, or to go on: no other process may be running this project.
    [[nodiscard]] virtual bool claim() = 0;
    /// A paused run was opened, and will want to go on.
    virtual void pausedRunOpened() = 0;
    /// The run begins or goes on, with the rows and the cursor as they are.
    [[nodiscard]] virtual bool begin() = 0;
    /// Whether a message may be handed over at once. When the disk lags behind it may not, and
    /// onCaughtUp is called later.
    [[nodiscard]] virtual bool isCaughtUp() = 0;
    /// The message is handed over next.
    [[nodiscard]] virtual bool handingOver(const MessageInFlight &message) = 0;
    /// What became of the rows of the message last handed over, by place; also when its run is
    /// over.
    virtual void settled(const MessageInFlight &message, const std::vector<RowResult> &results) = 0;
    /// The run is over, however it ended.
    virtual void over() = 0;

    std::function<void()> onCaughtUp;
};

/// Records nothing and allows everything.
class NoRecorder final : public RunRecorder
{
public:
    [[nodiscard]] bool claim() override { return true; }
    void pausedRunOpened() override {}
    [[nodiscard]] bool begin() override { return true; }
    [[nodiscard]] bool isCaughtUp() override { return true; }
    [[nodiscard]] bool handingOver(const MessageInFlight &) override { return true; }
    void settled(const MessageInFlight &, const std::vector<RowResult> &) override {}
    void over() override {}
};
