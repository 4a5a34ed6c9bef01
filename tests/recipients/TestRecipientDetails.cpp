#include "TestRecipientDetails.h"

#include "recipients/RecipientDetails.h"
#include "support/FakeTime.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// 21 November 2026, 09:00:00 in the time zone of the tests.
constexpr qint64 Moment = 1795248000000;

/// A row of "Anna" in that state.
Recipient annaWith(const QString &state, const Attempt &attempt = {})
{
    Recipient row;
    row.number = u"7"_s;
    row.name = u"Anna"_s;
    row.address = u"anna@example.net"_s;
    row.state = state;
    row.attempt = attempt;
    return row;
}

QStringList textsOf(const Recipient &row)
{
    QStringList texts;
    for (const DetailLine &line : RecipientDetails::linesOf(row, FakeFormats()))
        texts.append(line.label + u": "_s + line.text);
    return texts;
}

} // namespace

void TestRecipientDetails::everythingThatIsKnownIsSaid()
{
    const Recipient row =
        annaWith(u"Sent"_s, {Outcome::Sent,
                             {SmtpVerb::Content, 250, u"2.0.0"_s, u"Ok: queued as 4X"_s},
                             Moment,
                             2,
                             u"09.00.00.0.21112026@shop-pc"_s});
    const QStringList expected{u"Number: 7"_s,
                               u"Name: Anna"_s,
                               u"Address: anna@example.net"_s,
                               u"State: Sent"_s,
                               u"Outcome: sent: the server accepted the message"_s,
                               u"Server's reply: Ok: queued as 4X"_s,
                               u"Reply code: 250"_s,
                               u"Enhanced code: 2.0.0"_s,
                               u"Reply to the command: end of DATA"_s,
                               u"Time: 21/11/2026 09:00:00"_s,
                               u"Tries: 2"_s,
                               u"Message identifier: 09.00.00.0.21112026@shop-pc"_s,
                               u"Queue id at the server: 4X"_s};
    QCOMPARE(textsOf(row), expected);
}

void TestRecipientDetails::whatIsNotKnownIsLeftOut()
{
    Recipient row = annaWith(u"Waiting"_s);
    row.name.clear();
    const QStringList expected{u"Number: 7"_s, u"Address: anna@example.net"_s, u"State: Waiting"_s,
                               u"Outcome: nothing was sent yet"_s};
    QCOMPARE(textsOf(row), expected);
}

void TestRecipientDetails::whatBecameOfAnEarlierMessageIsSaid()
{
    const Recipient row = annaWith(
        u"Not sent"_s,
        {Outcome::Refused, {SmtpVerb::Rcpt, 451, {}, u"try later"_s}, Moment, 1, u"1@x"_s});
    const QStringList expected{u"Number: 7"_s,
                               u"Name: Anna"_s,
                               u"Address: anna@example.net"_s,
                               u"State: Not sent"_s,
                               u"Outcome: before: refused"_s,
                               u"Server's reply: try later"_s,
                               u"Reply code: 451"_s,
                               u"Reply to the command: RCPT"_s,
                               u"Time: 21/11/2026 09:00:00"_s,
                               u"Tries: 1"_s,
                               u"Message identifier: 1@x"_s};
    QCOMPARE(textsOf(row), expected);
}

void TestRecipientDetails::theQueueIdIsNamedOnlyWhenTheServerNamedIt()
{
    const auto named = [](const QString &text) {
        const ServerReply reply{SmtpVerb::Content, 250, {}, text};
        const QStringList texts =
            textsOf(annaWith(u"Sent"_s, {Outcome::Sent, reply, Moment, 1, u"1@x"_s}));
        return texts.filter(u"Queue id"_s);
    };
    QCOMPARE(named(u"OK id=1tAbCd-000000001-2x"_s),
             QStringList{u"Queue id at the server: 1tAbCd-000000001-2x"_s});
    QCOMPARE(named(u"fine"_s), QStringList());
}

void TestRecipientDetails::itSpeaksItalian()
{
    const ItalianTexts italian;
    const QStringList expected{u"Numero: 7"_s, u"Nome: Anna"_s,
                               u"Indirizzo E-Mail: anna@example.net"_s, u"Stato: Attesa"_s,
                               u"Esito: non è ancora stato inviato nulla"_s};
    QCOMPARE(textsOf(annaWith(u"Attesa"_s)), expected);
}
