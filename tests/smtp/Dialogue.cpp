#include "smtp/Dialogue.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QString errorName(qint32 number)
{
    static const QHash<SmtpErrorNumber, QString> Names = {
        {SmtpErrorNumber::BadPort, u"bad port"_s},
        {SmtpErrorNumber::NoServer, u"no server"_s},
        {SmtpErrorNumber::NotConnected, u"not connected"_s},
        {SmtpErrorNumber::CannotConnect, u"cannot connect"_s},
        {SmtpErrorNumber::ServerRefuses, u"server refuses"_s},
        {SmtpErrorNumber::Closed, u"closed"_s},
        {SmtpErrorNumber::TimedOut, u"timed out"_s},
        {SmtpErrorNumber::Unreadable, u"unreadable"_s},
        {SmtpErrorNumber::NotTaken, u"not taken"_s},
        {SmtpErrorNumber::InDoubt, u"in doubt"_s},
        {SmtpErrorNumber::CannotEncrypt, u"cannot encrypt"_s},
        {SmtpErrorNumber::CertificateRefused, u"certificate refused"_s},
        {SmtpErrorNumber::NoEncryption, u"no encryption"_s},
        {SmtpErrorNumber::LoginFailed, u"login failed"_s},
    };
    return Names.value(static_cast<SmtpErrorNumber>(number), u"unknown"_s);
}

WellKnownPorts portsFor(Dialogue::Port role, quint16 port)
{
    switch (role) {
    case Dialogue::Port::Relay:
        return {.relay = port};
    case Dialogue::Port::Submission:
        return {.submission = port};
    case Dialogue::Port::Submissions:
        return {.submissions = port};
    case Dialogue::Port::Other:
        break;
    }
    return {};
}

} // namespace

QString repliesText(const QList<ServerReply> &replies)
{
    QStringList texts;
    for (const ServerReply &reply : replies)
        texts += reply.isEmpty() ? u"-"_s : reply.toText();
    return texts.join(u" | ");
}

Dialogue::Dialogue(const Limits &limits, Port port)
    : client(clock, fakes.surroundings(limits, portsFor(port, server.port())))
{
    QObject::connect(&client, &Smtp::StatusChanged, &client, [this](qint32 code) {
        m_events += code == Smtp::Ready ? u"ready"_s : u"status %1"_s.arg(code);
    });
    QObject::connect(&client, &Smtp::MessageDone, &client, [this](bool sent) {
        m_events += (sent ? u"sent: "_s : u"refused: "_s) + repliesText(client.lastReplies());
    });
    QObject::connect(&client, &Smtp::LoginAwaited, &client, [this](bool waits) {
        m_events += waits ? u"login awaited"_s : u"login no longer awaited"_s;
    });
    QObject::connect(&client, &Smtp::SmtpError, &client,
                     [this](qint32 number, const QString &description) {
                         QString event = u"error: "_s + errorName(number);
                         if (client.mayHaveBeenAccepted())
                             event += u", perhaps accepted"_s;
                         if (description.contains(u'\n') || description.isEmpty())
                             event += u", not one line"_s;
                         if (!client.lastReplies().isEmpty())
                             event += u": "_s + repliesText(client.lastReplies());
                         m_events += event;
                     });
}

void Dialogue::setMessage()
{
    client.RecipientAddress = recipients;
    client.RecipientList = isGroup;
    client.FromAddress = u"sender@example.org"_s;
    client.Subject = u"Greetings"_s;
    client.DateText = u"Sat, 21 Nov 2026 09:00:00"_s;
    client.TextBody = text;
}

QString Dialogue::play(const QString &script)
{
    const QStringList lines = script.split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString problem = step(lines[i].trimmed());
        if (!problem.isEmpty())
            return u"line %1, \"%2\": %3\nevents: %4"_s.arg(
                QString::number(i + 1), lines[i].trimmed(), problem, m_events.join(u"; "));
    }
    return nothingLeft();
}

QString Dialogue::step(const QString &line)
{
    const QString words = line.sliced(std::min<qsizetype>(3, line.size()));
    if (line.startsWith(u"E: "))
        return engineCalls(words);
    if (line.startsWith(u"E< "))
        return engineHears(words);
    if (line.startsWith(u"C: "))
        return clientSays(words);
    if (line.startsWith(u"S: "))
        return serverSays(words);
    if (line.startsWith(u"L< "))
        return loginsHear(words);
    if (line.startsWith(u"L: "))
        return loginsSay(words);
    return line.isEmpty() ? QString() : u"no such step"_s;
}

QString Dialogue::engineCalls(const QString &method)
{
    const qsizetype before = m_events.size();
    if (method == u"Connect") {
        client.Server = u"127.0.0.1"_s;
        client.Port = server.port();
        client.Connect();
    } else if (method == u"Send") {
        setMessage();
        m_content = client.compose().value_or(QByteArray());
        client.Send();
    } else if (method == u"Reset") {
        client.Reset();
    } else if (method == u"Disconnect") {
        client.Disconnect();
    } else {
        return u"no such method"_s;
    }
    return m_events.size() == before ? QString() : u"an event from inside a call"_s;
}

QString Dialogue::engineHears(const QString &event)
{
    if (!FakeServer::waitUntil([this] { return !m_events.isEmpty(); }))
        return u"the engine hears nothing"_s;
    return m_events.first() == event ? (m_events.removeFirst(), QString())
                                     : u"the engine hears another event"_s;
}

QString Dialogue::clientSays(const QString &line)
{
    if (line == u"<connects>")
        return server.takeConnection();
    if (line == u"<closes>")
        return server.hear(FakeServer::Closed.toByteArray());
    if (line == u"<encrypts>")
        return server.awaitEncryption();
    if (line == u"<hello and closes>")
        return server.hearGarbageAndEnd("250 what do you mean?\r\n"_qba);
    if (line == u"<empty line>")
        return server.hear("\r\n"_qba);
    if (line == u"<message>")
        return server.hear(m_content);
    if (line == u"<stuffed>")
        return server.hear(Segment{m_content}.stuffed());
    QByteArray bytes = line.toUtf8() + "\r\n";
    return server.hear(bytes.replace("<size>", QByteArray::number(m_content.size())));
}

QString Dialogue::serverSays(const QString &line)
{
    if (line == u"<nothing>")
        return {};
    const QString problem = nothingLeft();
    if (!problem.isEmpty())
        return problem;
    if (line == u"<closes>")
        server.close();
    else if (line == u"<encrypts>")
        server.encrypt("220 go ahead\r\n"_qba);
    else if (line == u"<injects>")
        server.say("220 go ahead\r\n250 server.example\r\n"_qba);
    else if (line == u"<welcomes and accepts>")
        server.say("235 welcome\r\n250 queued\r\n"_qba);
    else if (line == u"<talks on>")
        server.say("220 go ahead\r\n"_qba);
    else if (line == u"<endless line>")
        server.say("250 " + QByteArray(Limits().replyLineLength, 'x'));
    else
        server.say(line.toUtf8() + "\r\n");
    return {};
}

QString Dialogue::loginsHear(const QString &event)
{
    QStringList &events = fakes.logins.events;
    if (!FakeServer::waitUntil([&] { return !events.isEmpty(); }))
        return u"nobody asks for a login, nor says how one went"_s;
    const QString said = events.takeFirst();
    return said == event ? QString() : u"it was said: "_s + said;
}

QString Dialogue::loginsSay(const QString &login)
{
    FakeServer::settle(); // people take their time
    const QStringList words = login.split(u' ');
    if (!fakes.logins.isAsked())
        return u"nobody has asked"_s;
    if (login == u"none")
        fakes.logins.answer(tl::unexpected(u"no login is known"_s));
    else if (words.size() == 3)
        fakes.logins.answer(Login{Login::Kind::Token, words[1], words[2]});
    else
        fakes.logins.answer(Login{Login::Kind::Password, words.value(0), words.value(1)});
    return {};
}

QString Dialogue::nothingLeft()
{
    const QString problem = server.silence();
    if (problem.isEmpty() && !fakes.logins.events.isEmpty())
        return u"more was said about logins: "_s + fakes.logins.events.join(u"; ");
    if (problem.isEmpty() && !m_events.isEmpty())
        return u"the engine heard more: "_s + m_events.join(u"; ");
    return problem;
}
