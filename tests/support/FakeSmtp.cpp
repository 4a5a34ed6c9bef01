#include "support/FakeSmtp.h"

#include <utility>

using namespace Qt::StringLiterals;

void FakeSmtp::post(std::function<void()> event)
{
    QMetaObject::invokeMethod(this, std::move(event), Qt::QueuedConnection);
}

void FakeSmtp::raiseReady()
{
    m_readyIsDue = false;
    Q_EMIT StatusChanged(Ready);
}

void FakeSmtp::raiseDone(bool accepted, const QList<ServerReply> &replies)
{
    messageSettled(true);
    m_replies = replies;
    Q_EMIT MessageDone(accepted);
    m_replies.clear();
}

void FakeSmtp::raiseError(qint32 number, const QString &description, bool mayHaveBeenAccepted,
                          const QList<ServerReply> &replies)
{
    messageSettled(false);
    m_replies = replies;
    m_mayHaveBeenAccepted = mayHaveBeenAccepted;
    Q_EMIT SmtpError(number, description);
    m_replies.clear();
    m_mayHaveBeenAccepted = true;
}

void FakeSmtp::messageSettled(bool sessionGoesOn)
{
    m_inFlight = false;
    m_readyIsDue = sessionGoesOn && !m_closing;
    m_closing = false;
    // Posted, so that the handler of this event can still drop the Connect.
    if (m_connectWaits)
        post([this] {
            if (std::exchange(m_connectWaits, false))
                openSession();
        });
}

void FakeSmtp::Reset()
{
    calls += u"Reset"_s;
    RecipientList = false;
    RequestReceipt = false;
    ReceiptAddress.clear();
    TextBody.clear();
    HtmlBody.clear();
    attachments.clear();
    closeSession();
}

void FakeSmtp::Disconnect()
{
    calls += u"Disconnect"_s;
    closeSession();
}

void FakeSmtp::closeSession()
{
    m_readyIsDue = false;
    m_connectWaits = false;
    m_closing = m_inFlight;
}

void FakeSmtp::Connect()
{
    calls += u"Connect"_s;
    connections += Server + u':' + QString::number(Port);
    m_inlineSetIsOld = true;
    if (m_inFlight) {
        m_closing = true;
        m_connectWaits = true;
    } else {
        m_connectWaits = false;
        openSession();
    }
}

void FakeSmtp::openSession()
{
    m_readyIsDue = true;
    if (onConnect)
        onConnect();
    if (automatic)
        post([this] {
            if (m_readyIsDue)
                raiseReady();
        });
}

QString FakeSmtp::AddRelatedFile(const QString &path)
{
    calls += u"AddRelatedFile"_s;
    if (std::exchange(m_inlineSetIsOld, false))
        inlineFiles.clear();
    const QString reference =
        takeRelatedFile ? takeRelatedFile(path) : u"cid:%1"_s.arg(++m_inlineCount);
    if (!reference.isEmpty())
        inlineFiles += path;
    return reference;
}

void FakeSmtp::AddAttachment(const QString &path)
{
    calls += u"AddAttachment"_s;
    attachments += path;
}

void FakeSmtp::Send()
{
    calls += u"Send"_s;
    const OutgoingMessage &message = *this;
    sent += SentMessage{message, std::exchange(attachments, {}), inlineFiles};
    m_inFlight = true;
    if (onSend)
        onSend();
    if (automatic)
        post([this, last = sent.last()] {
            if (!m_inFlight)
                return;
            raiseDone(!accepts || accepts(last));
            if (m_readyIsDue)
                raiseReady();
        });
}
