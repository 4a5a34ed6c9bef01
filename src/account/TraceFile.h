#pragma once

#include "base/Clock.h"
#include "prompts/Prompts.h"
#include "smtp/ProtocolTrace.h"
#include "smtp/ServerAccounts.h"

#include <QCoreApplication>
#include <QFile>

/// A trace in a file that only its owner can read, one line each, at once:
///
///     2026-11-21 09:00:00.123 smtp.example.org:587 C: EHLO pc
///
/// "C:" is the client, "S:" the server, "--" a note. What is there already stays. A file that
/// cannot be written is spoken of once and then left alone.
class TraceFile final : public ProtocolTrace
{
    Q_DECLARE_TR_FUNCTIONS(TraceFile)

public:
    /// Takes every dialogue down.
    TraceFile(const QString &path, const Clock &clock, Prompts &prompts);
    /// Takes down those with the hosts whose account says so.
    TraceFile(const QString &path, const Clock &clock, Prompts &prompts,
              const ServerAccounts &accounts);

    [[nodiscard]] bool wants(const QString &host) const override;
    void line(const ServerAddress &server, Speaker speaker, const QString &text) override;

private:
    TraceFile(const QString &path, const Clock &clock, Prompts &prompts,
              const ServerAccounts *accounts);

    [[nodiscard]] bool open();
    void giveUp(const QString &reason);

    QFile m_file;
    const Clock &m_clock;
    Prompts &m_prompts;
    const ServerAccounts *m_accounts; ///< nullptr: every host is wanted
    bool m_isGivenUp = false;
};
