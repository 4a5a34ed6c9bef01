#include "TestAttemptText.h"

#include "recipients/AttemptText.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const ServerReply Accepted{SmtpVerb::Content, 250, u"2.0.0"_s, u"Ok: queued as 4X"_s};
const ServerReply Unknown{SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"no such user"_s};
const ServerReply Busy{SmtpVerb::Rcpt, 451, {}, u"try again later"_s};
const QString InDoubt = u"in doubt: the connection ended before the server answered"_s;

Recipient rowWith(const QString &state, const Attempt &attempt = {})
{
    Recipient row;
    row.state = state;
    row.attempt = attempt;
    return row;
}

Attempt attemptWith(Outcome outcome, const ServerReply &reply = {})
{
    return {outcome, reply, 1795248000000, 1, u"09.00.00.0@shop-pc"_s};
}

void addRow(const char *name, const Recipient &row, const QString &text)
{
    QTest::newRow(name) << row << text;
}

void addColumns()
{
    QTest::addColumn<Recipient>("row");
    QTest::addColumn<QString>("text");
}

} // namespace

void TestAttemptText::whatTheStateDoesNotSay_data()
{
    addColumns();
    const QString waiting = u"Waiting"_s;
    addRow("nothing yet", rowWith(waiting), {});
    addRow("sent", rowWith(u"Sent"_s, attemptWith(Outcome::Sent, Accepted)),
           u"250 2.0.0 Ok: queued as 4X"_s);
    addRow("sent, as the file says", rowWith(u"Sent"_s), {});
    addRow("refused", rowWith(u"Error!"_s, attemptWith(Outcome::Refused, Unknown)),
           u"550 5.1.1 no such user"_s);
    addRow("refused for now", rowWith(u"Errore!"_s, attemptWith(Outcome::Refused, Busy)),
           u"451 try again later"_s);
    addRow("on its way", rowWith(u"Sending..."_s, attemptWith(Outcome::InFlight)), {});
    addRow("in doubt", rowWith(u"Sending..."_s, attemptWith(Outcome::InDoubt)), InDoubt);
    addRow("in doubt, whatever was said before",
           rowWith(u"Invio..."_s, attemptWith(Outcome::InDoubt, Accepted)), InDoubt);
    addRow("in doubt, as the file says", rowWith(u"Sending..."_s), InDoubt);
    addRow("sent before", rowWith(waiting, attemptWith(Outcome::Sent, Accepted)),
           u"before: sent, 250 2.0.0 Ok: queued as 4X"_s);
    addRow("sent before, and not meant now",
           rowWith(u"Not sent"_s, attemptWith(Outcome::Sent, Accepted)),
           u"before: sent, 250 2.0.0 Ok: queued as 4X"_s);
    addRow("sent before without a reply", rowWith(waiting, attemptWith(Outcome::Sent)),
           u"before: sent"_s);
    addRow("refused before", rowWith(u"Attesa"_s, attemptWith(Outcome::Refused, Unknown)),
           u"before: refused, 550 5.1.1 no such user"_s);
    addRow("in doubt before", rowWith(waiting, attemptWith(Outcome::InDoubt)),
           u"before: in doubt"_s);
    addRow("given up on its way", rowWith(waiting, attemptWith(Outcome::InFlight)),
           u"before: in doubt"_s);
    // The server had only agreed to the recipient.
    addRow("not taken", rowWith(waiting, attemptWith(Outcome::NotTaken, Accepted)),
           u"before: not taken"_s);
}

void TestAttemptText::whatTheStateDoesNotSay()
{
    QFETCH(Recipient, row);
    QFETCH(QString, text);
    QCOMPARE(AttemptText::besideState(row), text);
}

void TestAttemptText::outcomeInWords_data()
{
    addColumns();
    const QString waiting = u"Waiting"_s;
    const QString notSent = u"Not sent"_s;
    addRow("nothing yet", rowWith(waiting), u"nothing was sent yet"_s);
    addRow("passed over", rowWith(notSent), u"passed over: the row was not checked"_s);
    addRow("on its way", rowWith(u"Sending..."_s, attemptWith(Outcome::InFlight)),
           u"on its way: the server has not answered yet"_s);
    addRow("sent", rowWith(u"Sent"_s, attemptWith(Outcome::Sent, Accepted)),
           u"sent: the server accepted the message"_s);
    addRow("refused", rowWith(u"Error!"_s, attemptWith(Outcome::Refused, Unknown)), u"refused"_s);
    addRow("refused for now", rowWith(u"Error!"_s, attemptWith(Outcome::Refused, Busy)),
           u"refused for now: the server may accept it later"_s);
    addRow("in doubt", rowWith(u"Sending..."_s, attemptWith(Outcome::InDoubt)), InDoubt);
    addRow("sent before", rowWith(waiting, attemptWith(Outcome::Sent, Accepted)),
           u"before: sent"_s);
    addRow("refused before", rowWith(notSent, attemptWith(Outcome::Refused, Busy)),
           u"before: refused"_s);
}

void TestAttemptText::outcomeInWords()
{
    QFETCH(Recipient, row);
    QFETCH(QString, text);
    QCOMPARE(AttemptText::outcome(row), text);
}

void TestAttemptText::everythingIsSaidInItalian()
{
    const ItalianTexts italian;
    const Recipient inDoubt = rowWith(u"Invio..."_s, attemptWith(Outcome::InDoubt));
    QCOMPARE(AttemptText::besideState(inDoubt),
             u"in dubbio: la connessione è finita prima che il server rispondesse"_s);
    const Recipient before = rowWith(u"Attesa"_s, attemptWith(Outcome::Sent, Accepted));
    QCOMPARE(AttemptText::besideState(before), u"prima: inviato, 250 2.0.0 Ok: queued as 4X"_s);
}
