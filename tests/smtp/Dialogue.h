#pragma once

#include "smtp/ClientFakes.h"
#include "smtp/client/SmtpClient.h"
#include "support/FakeServer.h"
#include "support/FakeTime.h"

#include <QStringList>

/// The client between an engine and a server that both follow a script. A script reads like the
/// examples of RFC 5321, one step a line:
///
///     E: Connect            the engine calls a method (Connect, Send, Reset, Disconnect)
///     C: <connects>         the client opens a connection
///     S: 220 ready          the server says a line
///     C: EHLO [127.0.0.1]   the client says exactly this line
///     E< ready              the client tells the engine: ready, sent, refused, login awaited, or
///                           error and what
///     C: <message>          the message as it is; <stuffed> as DATA carries it
///     C: <closes>           the client closes the connection
///     S: <closes>           the server does
///     S: <nothing>          the server lets a limit pass
///     S: <encrypts>         the server says "220 go ahead" and begins TLS
///     S: <injects>          it says that, and a reply behind it in one breath
///     S: <welcomes and accepts> the server says 235, and 250 behind it in one breath
///     S: <talks on>         it says that, and what is no TLS when the client has begun
///     C: <empty line>       the client says nothing but a line end
///     C: <encrypts>         the handshake succeeds
///     C: <hello and closes> the client begins the handshake and gives up
///     L< asked              the client wants a login, or tells how one went: accepted, refused
///     L: anna secret        it is given one, a user and a password; or "none", "token anna abc"
///
/// Before the server speaks, and at the end, everything that the client said or told has to be in
/// the script already.
class Dialogue
{
public:
    /// Which of the well-known ports the server's is.
    enum class Port { Other, Relay, Submission, Submissions };

    explicit Dialogue(const Limits &limits = {}, Port port = Port::Other);

    FakeClock clock;
    FakeServer server;
    ClientFakes fakes;
    SmtpClient client;
    /// What each Send is given, besides constant values.
    QString recipients = QStringLiteral("anna@example.net");
    bool isGroup = false;
    QString text = QStringLiteral("Hello\r\n");

    /// What went wrong; empty when the script was followed to its end.
    [[nodiscard]] QString play(const QString &script);
    /// Sets the properties of a message.
    void setMessage();
    /// What the client told the engine and the script has not asked for.
    [[nodiscard]] const QStringList &events() const { return m_events; }

private:
    [[nodiscard]] QString step(const QString &line);
    [[nodiscard]] QString engineCalls(const QString &method);
    [[nodiscard]] QString engineHears(const QString &event);
    [[nodiscard]] QString clientSays(const QString &line);
    [[nodiscard]] QString serverSays(const QString &line);
    [[nodiscard]] QString loginsHear(const QString &event);
    [[nodiscard]] QString loginsSay(const QString &login);
    [[nodiscard]] QString nothingLeft();

    QByteArray m_content; ///< of the last message
    QStringList m_events;
};

/// A reply to each recipient, as the events of a script show them.
[[nodiscard]] QString repliesText(const QList<ServerReply> &replies);
