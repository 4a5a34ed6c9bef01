#pragma once

#include "smtp/Smtp.h"

#include <QStringList>

#include <functional>

/// A client in memory that keeps the rules of the contract and does nothing by itself: it records
/// what it is told, and the test raises the events, either at once (raise...) or from the event
/// loop (post).
class FakeSmtp : public Smtp
{
    Q_OBJECT

public:
    /// A message as it stood when Send was called.
    struct SentMessage
    {
        OutgoingMessage message;
        QStringList attachments;
        QStringList inlineFiles;
    };

    using Smtp::Smtp;

    QStringList calls;       ///< the names of the methods called, in order
    QStringList connections; ///< "server:port" of each Connect, in order
    QList<SentMessage> sent; ///< one for each Send
    QStringList attachments; ///< those of the next message
    QStringList inlineFiles; ///< the present set
    qint32 statusFlag = 0;   ///< what StatusFlag returns
    /// What AddRelatedFile returns for a path; unset: "cid:" and a number. An empty result means
    /// that the file cannot be taken.
    std::function<QString(const QString &path)> takeRelatedFile;
    /// Called when a session begins to open, also when a waiting Connect has its turn.
    std::function<void()> onConnect;
    /// Called by Send, when the message is recorded.
    std::function<void()> onSend;
    /// Answers by itself: each Connect with the ready event, each Send with MessageDone, Sent being
    /// what `accepts` says (unset: True), then ready. All events are posted.
    bool automatic = false;
    std::function<bool(const SentMessage &)> accepts;

    /// A Connect, or a message finished in a session that goes on, asks for the ready event.
    [[nodiscard]] bool readyIsDue() const { return m_readyIsDue; }
    /// Between Send and its result.
    [[nodiscard]] bool messageInFlight() const { return m_inFlight; }
    /// A Connect waits behind the message in flight.
    [[nodiscard]] bool connectWaits() const { return m_connectWaits; }

    /// Raises the ready event now, whether it is due or not.
    void raiseReady();
    /// Settles the message in flight now. The ready event is not raised; a waiting Connect has its
    /// turn.
    void raiseDone(bool accepted, const QList<ServerReply> &replies = {});
    /// Ends the session with a failure now; a waiting Connect has its turn.
    void raiseError(qint32 number, const QString &description, bool mayHaveBeenAccepted = true,
                    const QList<ServerReply> &replies = {});
    /// Does it when control is back in the event loop.
    void post(std::function<void()> event);

    [[nodiscard]] qint32 StatusFlag() const override { return statusFlag; }
    void Reset() override;
    void Connect() override;
    [[nodiscard]] QString AddRelatedFile(const QString &path) override;
    void AddAttachment(const QString &path) override;
    void Send() override;
    void Disconnect() override;
    [[nodiscard]] QList<ServerReply> lastReplies() const override { return m_replies; }
    [[nodiscard]] bool mayHaveBeenAccepted() const override { return m_mayHaveBeenAccepted; }

private:
    void closeSession();
    void openSession();
    void messageSettled(bool sessionGoesOn);

    bool m_readyIsDue = false;
    bool m_inFlight = false;
    bool m_closing = false; ///< the session ends with the message in flight
    bool m_connectWaits = false;
    bool m_inlineSetIsOld = false; ///< the next inline file begins a new set
    int m_inlineCount = 0;
    QList<ServerReply> m_replies;
    bool m_mayHaveBeenAccepted = true;
};
