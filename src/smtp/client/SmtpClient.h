#pragma once

#include "smtp/MessageComposer.h"
#include "smtp/Smtp.h"
#include "smtp/client/LetterBuilder.h"
#include "smtp/client/Session.h"

#include <QHash>

#include <deque>
#include <optional>

/// The SMTP client: it keeps one session to one server, reconnects where the server ends it
/// between two messages, and hands a message that was certainly not taken over once more.
class SmtpClient final : public Smtp, public MessageComposer
{
    Q_OBJECT

public:
    SmtpClient(const Clock &clock, const ClientSurroundings &from, QObject *parent = nullptr);

    [[nodiscard]] qint32 StatusFlag() const override;
    void Reset() override;
    void Connect() override;
    [[nodiscard]] QString AddRelatedFile(const QString &path) override;
    void AddAttachment(const QString &path) override;
    void Send() override;
    void Disconnect() override;
    [[nodiscard]] QList<ServerReply> lastReplies() const override { return m_lastReplies; }
    [[nodiscard]] bool mayHaveBeenAccepted() const override { return m_mayHaveBeenAccepted; }
    [[nodiscard]] std::optional<ServerCertificate> refusedCertificate() const override
    {
        return m_refusedCertificate;
    }

    [[nodiscard]] tl::expected<QByteArray, QString> compose() override;

private:
    /// Something that the engine is to be told.
    struct Event
    {
        enum class Kind { Ready, Done, Error, LoginAwaited };

        Kind kind = Kind::Ready;
        bool sent = false;           ///< of Done
        SessionFault fault;          ///< of Error, with the server's name
        bool settlesMessage = false; ///< of Error
        bool mayHaveBeenAccepted = false;
        QList<ServerReply> replies;
        std::optional<ServerCertificate> refusedCertificate; ///< of Error
        bool waits = false;                                  ///< of LoginAwaited
    };
    /// The message between Send and its result.
    struct InFlight
    {
        Letter letter;
        bool wasHandedOverBefore = false;
        QList<ServerReply> replies; ///< those of the first time
    };
    /// What Connect was told.
    struct Wish
    {
        QString server;
        qint32 port = 0;
    };

    /// Marks a call of the engine: what it causes is posted, never raised from inside it.
    class Call
    {
    public:
        explicit Call(SmtpClient &client) : m_client(client) { ++m_client.m_calls; }
        Call(const Call &) = delete;
        Call &operator=(const Call &) = delete;
        ~Call()
        {
            if (--m_client.m_calls == 0)
                m_client.postDrain();
        }

    private:
        SmtpClient &m_client;
    };

    void openWaiting();
    void openSession();
    void closeSession();
    void endSession();
    void onReported(const std::optional<Settlement> &settlement);
    void settled(const Settlement &settlement, const SessionFault &fault);
    void onLoginAwaited(bool waits);
    void finishMessage(bool sent, const QList<ServerReply> &replies);
    void raiseError(SmtpErrorNumber number, const QString &description,
                    bool mayHaveBeenAccepted = false, const QList<ServerReply> &replies = {});

    [[nodiscard]] bool hasWork() const;
    void postDrain();
    void drain();
    void deliver(const Event &event);

    const ClientSurroundings m_from;
    LetterBuilder m_builder;
    QStringList m_attachments;

    /// Connect was called, and since then neither Reset nor Disconnect nor an error came: the
    /// engine may send.
    bool m_isWanted = false;
    ServerAddress m_target;       ///< of the present session, or of the last one
    Session *m_session = nullptr; ///< none while the server has ended it
    bool m_wasReady = false;      ///< the present session
    std::optional<InFlight> m_inFlight;
    std::optional<Wish> m_waiting;            ///< a Connect behind the message in flight
    QHash<QString, Experience> m_experiences; ///< by "host:port"

    std::deque<Event> m_events;
    int m_calls = 0; ///< calls of the engine in progress
    bool m_isDrainPosted = false;
    QList<ServerReply> m_lastReplies;
    bool m_mayHaveBeenAccepted = true;
    std::optional<ServerCertificate> m_refusedCertificate;
};
