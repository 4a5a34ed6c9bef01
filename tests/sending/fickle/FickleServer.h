#pragma once

#include <QHash>
#include <QSet>
#include <QTcpServer>

#include <deque>
#include <ostream>

class QTcpSocket;

/// What a server does where it should answer.
enum class Whim : std::size_t {
    Accept,
    RefuseForNow,
    RefuseForGood,
    EndService,        ///< 421, and the end of the connection (RFC 5321, section 3.8)
    Linger,            ///< answers, but not at once
    Drop,              ///< does nothing and ends the connection
    DropWhenDone,      ///< does what was asked and ends the connection instead of saying so
    AnswerAndDrop,     ///< answers and ends the connection
    AnswerHalfAndDrop, ///< the same, in the middle of the line
    Babble,            ///< says what is no reply
    Silence,           ///< says nothing any more
};

/// Its name, for whoever reads of a failure.
void showValue(Whim whim, std::ostream &out);

/// An SMTP server that follows whims, one for each greeting and each answer; when none is left it
/// accepts. It keeps the rules in one thing: what it accepted it has, and nothing else.
class FickleServer : public QTcpServer
{
    Q_OBJECT

public:
    FickleServer(std::deque<Whim> whims, bool pipelining, bool chunking);

    /// How many messages each address got.
    [[nodiscard]] const QHash<QByteArray, int> &delivered() const { return m_delivered; }
    /// Those addresses whose message was answered with 250, and the reply sent whole, since the
    /// last call of forgetConfirmed.
    [[nodiscard]] const QSet<QByteArray> &confirmed() const { return m_confirmed; }
    void forgetConfirmed() { m_confirmed.clear(); }

private:
    class Connection;

    [[nodiscard]] Whim nextWhim();

    std::deque<Whim> m_whims;
    bool m_pipelining;
    bool m_chunking;
    QHash<QByteArray, int> m_delivered;
    QSet<QByteArray> m_confirmed;
};
