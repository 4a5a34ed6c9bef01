#include "app/Connections.h"

#include "base/modMain.h"
#include "smtp/client/HostName.h"
#include "smtp/client/SmtpProbe.h"

#include <QDir>

Connections::Connections(const ConnectionParts &parts)
    : accounts(parts.settings, parts.codePage),
      logins({accounts, keyring, parts.prompts, QDir::home().filePath(QStringLiteral(".netrc")),
              parts.loginPrompt, parts.passwordCommand}),
      trace(parts.traceOfAllHosts ? TraceFile(*parts.traceOfAllHosts, parts.clock, parts.prompts)
                                  : TraceFile(traceFileIn(parts.programFolder), parts.clock,
                                              parts.prompts, accounts)),
      m_surroundings{logins, accounts, trace, ownHostName()},
      SMTP(parts.clock, m_surroundings),
      trialSMTP(parts.clock, m_surroundings)
{}

std::unique_ptr<ServerProbe> Connections::newProbe() const
{
    return std::make_unique<SmtpProbe>(m_surroundings);
}

QString Connections::traceFileIn(const QString &programFolder)
{
    return joinPath(programFolder, QStringLiteral("SMTP trace.txt"));
}
