#include "TestTotals.h"

#include "recipients/TotalsText.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Recipient rowIn(const QString &state, int code = 0)
{
    Recipient row;
    row.state = state;
    row.attempt.reply.code = code;
    return row;
}

} // namespace

void TestTotals::everyRowCountsOnce()
{
    const Totals totals =
        totalsOf({rowIn(u"Sent"_s), rowIn(u"Inviato"_s), rowIn(u"Error!"_s, 550),
                  rowIn(u"Error!"_s, 451), rowIn(u"Sending..."_s), rowIn(u"Waiting"_s),
                  rowIn(u"Envoyé"_s), rowIn({}), rowIn(u"Not sent"_s)});
    QCOMPARE(totals.rows, 9);
    QCOMPARE(totals.sent, 2);
    QCOMPARE(totals.refused, 2);
    QCOMPARE(totals.refusedForNow, 1);
    QCOMPARE(totals.inDoubt, 1);
    QCOMPARE(totals.waiting, 3); // of a word that is none of ours nobody knows more
    QCOMPARE(totals.notSent, 1);
    QCOMPARE(totals.sent + totals.refused + totals.inDoubt + totals.waiting + totals.notSent,
             totals.rows);
}

void TestTotals::onlyCheckedRowsAreMeantByARun()
{
    Recipient unchecked = rowIn(u"Not sent"_s);
    unchecked.checked = false;
    const Totals totals = totalsOfChecked({rowIn(u"Sent"_s), unchecked});
    QCOMPARE(totals.rows, 1);
    QCOMPARE(totals.notSent, 0);
}

void TestTotals::whomARunHasComeToIsMeantWhateverTheCheckMark()
{
    std::vector<Recipient> rows{rowIn(u"Sent"_s), rowIn(u"Error!"_s), rowIn(u"Sending..."_s),
                                rowIn(u"Waiting"_s), rowIn(u"Not sent"_s)};
    QCOMPARE(totalsOfMeant(rows), totalsOf(rows));
    for (Recipient &row : rows)
        row.checked = false;
    const Totals totals = totalsOfMeant(rows);
    QCOMPARE(totals.rows, 3);
    QCOMPARE(totals.sent, 1);
    QCOMPARE(totals.refused, 1);
    QCOMPARE(totals.inDoubt, 1);
}

void TestTotals::refusedForNowIsSaidByTheReply()
{
    QVERIFY(isRefusedForNow(rowIn(u"Error!"_s, 421)));
    QVERIFY(!isRefusedForNow(rowIn(u"Error!"_s, 500)));
    QVERIFY(!isRefusedForNow(rowIn(u"Error!"_s)));
    QVERIFY(!isRefusedForNow(rowIn(u"Waiting"_s, 421)));
}

void TestTotals::whatIsInFlightIsNotInDoubtYet()
{
    Recipient row = rowIn(u"Sending..."_s);
    QVERIFY(isInDoubt(row)); // read from a file
    row.attempt.outcome = Outcome::InFlight;
    QVERIFY(!isInDoubt(row));
    row.attempt.outcome = Outcome::InDoubt;
    QVERIFY(isInDoubt(row));
    row.state = u"Waiting"_s;
    QVERIFY(!isInDoubt(row));
}

void TestTotals::theTotalsInWords_data()
{
    QTest::addColumn<bool>("italian");
    QTest::addColumn<Totals>("totals");
    QTest::addColumn<QString>("soFar");
    QTest::addColumn<QString>("atTheEnd");
    const Totals many{14500, 5780, 1234, 2, 7484, 0, 9};
    const Totals one{3, 1, 1, 1, 0, 0, 0};
    const Totals none{2, 0, 0, 0, 2, 0, 0};
    QTest::newRow("many") << false << many << u"5,780 of 14,500 sent, 1,234 refused, 2 in doubt"_s
                          << u"5,780 sent, 1,234 refused, 2 in doubt"_s;
    QTest::newRow("one") << false << one << u"1 of 3 sent, 1 refused, 1 in doubt"_s
                         << u"1 sent, 1 refused, 1 in doubt"_s;
    QTest::newRow("none") << false << none << u"0 of 2 sent"_s << u"0 sent"_s;
    QTest::newRow("many, Italian")
        << true << many << u"5.780 di 14.500 inviati, 1.234 rifiutati, 2 in dubbio"_s
        << u"5.780 inviati, 1.234 rifiutati, 2 in dubbio"_s;
    QTest::newRow("one, Italian") << true << one << u"1 di 3 inviato, 1 rifiutato, 1 in dubbio"_s
                                  << u"1 inviato, 1 rifiutato, 1 in dubbio"_s;
}

void TestTotals::theTotalsInWords()
{
    QFETCH(bool, italian);
    QFETCH(Totals, totals);
    QFETCH(QString, soFar);
    QFETCH(QString, atTheEnd);
    std::optional<ItalianTexts> texts;
    if (italian)
        texts.emplace();
    const TotalsText text(italian ? Language::Italian : Language::English);
    QCOMPARE(text.soFar(totals), soFar);
    QCOMPARE(text.atTheEnd(totals), atTheEnd);
}
