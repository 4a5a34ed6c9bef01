#include "smtp/client/SmtpClient.h"

#include <QLoggingCategory>

#include <utility>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(clientTrace, "sorvanta.smtp.client", QtInfoMsg)

SmtpClient::SmtpClient(const Clock &clock, const ClientSurroundings &from, QObject *parent)
    : Smtp(parent), m_from(from), m_builder(clock)
{}

qint32 SmtpClient::StatusFlag() const
{
    return m_session && m_session->isTransferring() ? 1 : 0;
}

void SmtpClient::Reset()
{
    const Call call(*this);
    RecipientList = false;
    RequestReceipt = false;
    ReceiptAddress.clear();
    TextBody.clear();
    HtmlBody.clear();
    m_attachments.clear();
    endSession();
}

void SmtpClient::Disconnect()
{
    const Call call(*this);
    endSession();
    // It would wait for a login that nobody wants any more.
    if (m_inFlight && m_session)
        m_session->withdrawHeld();
}

void SmtpClient::Connect()
{
    const Call call(*this);
    endSession();
    m_builder.inlineFiles().beginNewSet();
    m_waiting = Wish{Server.trimmed(), Port};
    if (!m_inFlight)
        openWaiting();
}

QString SmtpClient::AddRelatedFile(const QString &path)
{
    return m_builder.inlineFiles().add(path);
}

void SmtpClient::AddAttachment(const QString &path)
{
    m_attachments += path;
}

tl::expected<QByteArray, QString> SmtpClient::compose()
{
    const auto letter = m_builder.build(*this, std::exchange(m_attachments, {}));
    m_builder.inlineFiles().beginNewSet();
    if (!letter)
        return tl::unexpected(letter.error());
    if (letter->recipients.size() == 1 && !letter->recipients.first())
        return tl::unexpected(letter->recipients.first().error());
    return letter->content.toByteArray();
}

void SmtpClient::Send()
{
    const Call call(*this);
    const QStringList attachments = std::exchange(m_attachments, {});
    if (m_inFlight) {
        qCDebug(clientTrace) << "Send while a message is in flight";
        return;
    }
    if (!m_isWanted) {
        raiseError(SmtpErrorNumber::NotConnected, u"there is no session to send a message in"_s);
        return;
    }
    auto letter = m_builder.build(*this, attachments);
    std::erase_if(m_events, [](const Event &event) { return event.kind == Event::Kind::Ready; });
    if (!letter) {
        ServerReply reason;
        reason.text = letter.error();
        finishMessage(false, QList<ServerReply>(LetterBuilder::recipientCount(*this), reason));
        return;
    }
    m_inFlight = InFlight{*std::move(letter), false, {}};
    if (!m_session)
        openSession(); // the server has ended the session since the message before
    else if (m_session->phase() == Session::Phase::Ready)
        m_session->send(m_inFlight->letter);
}

/// Nothing more of this session is told to the engine, but for the result of its message.
void SmtpClient::endSession()
{
    m_isWanted = false;
    m_waiting.reset();
    std::erase_if(m_events, [](const Event &event) {
        return event.kind == Event::Kind::Ready || event.kind == Event::Kind::LoginAwaited ||
               (event.kind == Event::Kind::Error && !event.settlesMessage);
    });
    if (!m_inFlight)
        closeSession();
}

void SmtpClient::closeSession()
{
    if (m_session)
        std::exchange(m_session, nullptr)->quit();
}

void SmtpClient::openWaiting()
{
    const Wish wish = *std::exchange(m_waiting, std::nullopt);
    if (wish.server.isEmpty()) {
        raiseError(SmtpErrorNumber::NoServer, u"no server is given"_s);
    } else if (wish.port < 1 || wish.port > 65535) {
        raiseError(SmtpErrorNumber::BadPort,
                   u"%1: the port must be a number from 1 to 65535, not %2"_s.arg(wish.server)
                       .arg(wish.port));
    } else {
        m_isWanted = true;
        m_target = {wish.server, static_cast<quint16>(wish.port)};
        openSession();
    }
}

void SmtpClient::openSession()
{
    m_wasReady = false;
    m_session = new Session(m_from, this);
    connect(m_session, &Session::reported, this, &SmtpClient::onReported);
    connect(m_session, &Session::loginAwaited, this, &SmtpClient::onLoginAwaited);
    m_session->open(m_target, m_experiences.value(m_target.toText()));
}

void SmtpClient::onReported(const std::optional<Settlement> &settlement)
{
    const bool hasEnded = m_session->phase() == Session::Phase::Off;
    const SessionFault fault = m_session->fault();
    // A refusal alone may have had other reasons.
    if (m_session->wantsLogin() && m_session->description().login == LoginState::Accepted)
        m_experiences[m_target.toText()].wantsLogin = true;
    const auto certificate = m_session->description().certificate;
    if (hasEnded)
        closeSession();
    if (settlement) {
        settled(*settlement, fault);
    } else if (!hasEnded) {
        m_wasReady = true;
        if (m_inFlight)
            m_session->send(m_inFlight->letter);
        else
            m_events.push_back({});
    } else if (!m_wasReady || m_inFlight) { // a message in flight was held for a login
        const QString reason = m_target.toText() + u": "_s + fault.reason;
        if (m_inFlight && m_inFlight->wasHandedOverBefore)
            raiseError(SmtpErrorNumber::NotTaken, reason + u" (the message was not taken before)"_s,
                       false, m_inFlight->replies);
        else
            raiseError(fault.number, reason);
        if (fault.number == SmtpErrorNumber::CertificateRefused)
            m_events.back().refusedCertificate = certificate;
    }
    // Else the server has ended a session in which nothing was going on: the next Send opens
    // another one.
    if (m_calls == 0)
        drain();
}

void SmtpClient::settled(const Settlement &settlement, const SessionFault &fault)
{
    using Outcome = Transaction::Outcome;
    if (settlement.chunkingFailed)
        m_experiences[m_target.toText()].mayChunk = false;
    switch (settlement.outcome) {
    case Outcome::Accepted:
    case Outcome::Refused:
        finishMessage(settlement.outcome == Outcome::Accepted, settlement.replies);
        break;
    case Outcome::NotTaken:
        if (m_inFlight->wasHandedOverBefore) {
            raiseError(SmtpErrorNumber::NotTaken,
                       u"%1: the message was not taken: %2"_s.arg(m_target.toText(), fault.reason),
                       false, settlement.replies);
        } else {
            m_inFlight->wasHandedOverBefore = true;
            m_inFlight->replies = settlement.replies;
            openSession();
        }
        break;
    case Outcome::InDoubt:
    case Outcome::Open:
        raiseError(SmtpErrorNumber::InDoubt,
                   u"%1: the message was transferred, but the server did not say whether it "
                   u"accepts it: %2"_s.arg(m_target.toText(), fault.reason),
                   true, settlement.replies);
        break;
    }
}

void SmtpClient::onLoginAwaited(bool waits)
{
    Event event;
    event.kind = Event::Kind::LoginAwaited;
    event.waits = waits;
    m_events.push_back(std::move(event));
    if (m_calls == 0)
        postDrain();
}

void SmtpClient::finishMessage(bool sent, const QList<ServerReply> &replies)
{
    m_inFlight.reset();
    Event done;
    done.kind = Event::Kind::Done;
    done.sent = sent;
    done.replies = replies;
    m_events.push_back(std::move(done));
    const bool isOpening = m_session && !m_wasReady; // it will say so when it is ready
    if (!m_isWanted)
        closeSession();
    else if (!isOpening)
        m_events.push_back({});
}

void SmtpClient::raiseError(SmtpErrorNumber number, const QString &description,
                            bool mayHaveBeenAccepted, const QList<ServerReply> &replies)
{
    Event error;
    error.kind = Event::Kind::Error;
    error.fault = {number, description};
    error.settlesMessage = m_inFlight.has_value();
    error.mayHaveBeenAccepted = mayHaveBeenAccepted;
    error.replies = replies;
    m_isWanted = false;
    m_inFlight.reset();
    closeSession();
    m_events.push_back(std::move(error));
}

bool SmtpClient::hasWork() const
{
    return !m_events.empty() || (m_waiting && !m_inFlight);
}

void SmtpClient::postDrain()
{
    if (hasWork() && !std::exchange(m_isDrainPosted, true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isDrainPosted = false;
                drain();
            },
            Qt::QueuedConnection);
}

/// Tells the engine what has happened. What its answers cause by themselves comes in the next turn
/// of the event loop.
void SmtpClient::drain()
{
    for (std::size_t count = m_events.size(); count > 0 && !m_events.empty(); --count) {
        const Event event = std::move(m_events.front());
        m_events.pop_front();
        deliver(event);
    }
    if (m_waiting && !m_inFlight)
        openWaiting();
    postDrain();
}

void SmtpClient::deliver(const Event &event)
{
    switch (event.kind) {
    case Event::Kind::Ready:
        Q_EMIT StatusChanged(Ready);
        break;
    case Event::Kind::Done:
        m_lastReplies = event.replies;
        Q_EMIT MessageDone(event.sent);
        m_lastReplies.clear();
        break;
    case Event::Kind::Error:
        m_lastReplies = event.replies;
        m_mayHaveBeenAccepted = event.mayHaveBeenAccepted;
        m_refusedCertificate = event.refusedCertificate;
        Q_EMIT SmtpError(static_cast<qint32>(event.fault.number), event.fault.reason);
        m_lastReplies.clear();
        m_mayHaveBeenAccepted = true;
        m_refusedCertificate.reset();
        break;
    case Event::Kind::LoginAwaited:
        Q_EMIT LoginAwaited(event.waits);
        break;
    }
}
