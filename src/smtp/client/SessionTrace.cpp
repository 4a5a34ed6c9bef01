#include "smtp/client/SessionTrace.h"

#include <QList>

void SessionTrace::begin(const ServerAddress &server)
{
    m_server = server;
    m_isWanted = m_trace.wants(server.host);
}

void SessionTrace::commands(const QByteArray &lines)
{
    if (!m_isWanted)
        return;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty())
            write(Speaker::Client, printable(line).chopped(line.endsWith('\r') ? 1 : 0));
    }
}

void SessionTrace::reply(const WireReply &reply)
{
    if (!m_isWanted)
        return;
    const QList<QByteArray> lines = reply.lines.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QChar separator = i + 1 < lines.size() ? u'-' : u' ';
        write(Speaker::Server, QString::number(reply.code) + separator + printable(lines[i]));
    }
}

void SessionTrace::write(Speaker speaker, const QString &text)
{
    if (m_isWanted)
        m_trace.line(m_server, speaker, text);
}
