#include "account/TraceFile.h"

#include "base/AppendedFile.h"
#include "base/Lines.h"

#include <QFileInfo>

namespace {

QString markOf(Speaker speaker)
{
    switch (speaker) {
    case Speaker::Client:
        return QStringLiteral("C:");
    case Speaker::Server:
        return QStringLiteral("S:");
    case Speaker::Note:
        return QStringLiteral("--");
    }
    return {};
}

} // namespace

TraceFile::TraceFile(const QString &path, const Clock &clock, Prompts &prompts)
    : TraceFile(path, clock, prompts, nullptr)
{}

TraceFile::TraceFile(const QString &path, const Clock &clock, Prompts &prompts,
                     const ServerAccounts &accounts)
    : TraceFile(path, clock, prompts, &accounts)
{}

TraceFile::TraceFile(const QString &path, const Clock &clock, Prompts &prompts,
                     const ServerAccounts *accounts)
    : m_file(systemPath(path)), m_clock(clock), m_prompts(prompts), m_accounts(accounts)
{}

bool TraceFile::wants(const QString &host) const
{
    return !m_isGivenUp && (m_accounts == nullptr || m_accounts->account(host).writeTrace);
}

void TraceFile::line(const ServerAddress &server, Speaker speaker, const QString &text)
{
    if (m_isGivenUp || !open())
        return;
    const QString line = m_clock.now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz ")) +
                         withVisibleControls(server.toText()) + u' ' + markOf(speaker) + u' ' +
                         withVisibleControls(text) + u'\n';
    if (const auto written = appendWhole(m_file, line.toUtf8()); !written)
        giveUp(written.error());
}

bool TraceFile::open()
{
    if (m_file.isOpen())
        return true;
    // A pipe would be waited for until somebody reads it.
    const QFileInfo info(m_file);
    if (info.exists() && !info.isFile()) {
        giveUp(tr("it is not a regular file"));
        return false;
    }
    constexpr auto Mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    if (!m_file.open(Mode, QFile::ReadOwner | QFile::WriteOwner)) {
        giveUp(m_file.errorString());
        return false;
    }
    return true;
}

void TraceFile::giveUp(const QString &reason)
{
    m_isGivenUp = true;
    m_prompts.notice({Icon::Exclamation, tr("Trace"),
                      tr("The dialogue with the server cannot be written to %1: %2.")
                          .arg(m_file.fileName(), reason)});
}
