#include "TestMomentTexts.h"

#include "sending/MomentTexts.h"
#include "support/FakeTime.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

void TestMomentTexts::theDateHasEnglishNamesInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Italian));
    FakeClock clock;
    MomentTexts moment(clock, QStringLiteral("pc"));
    QCOMPARE(moment.dateText(), QStringLiteral("Sat, 21 Nov 2026 09:00:00"));
    QLocale::setDefault(before);
}

void TestMomentTexts::theDateFollowsTheClock()
{
    FakeClock clock;
    MomentTexts moment(clock, QStringLiteral("pc"));
    QCOMPARE(moment.dateText(), QStringLiteral("Sat, 21 Nov 2026 09:00:00"));
    clock.advanceMilliseconds(999);
    QCOMPARE(moment.dateText(), QStringLiteral("Sat, 21 Nov 2026 09:00:00"));
    clock.advanceMilliseconds(1);
    QCOMPARE(moment.dateText(), QStringLiteral("Sat, 21 Nov 2026 09:00:01"));
}

void TestMomentTexts::anIdentifierLosesPointsAndSlashesOnly()
{
    QCOMPARE(messageIdentifier(QStringLiteral("10:42.07 AM"), QStringLiteral("15/03-2002"),
                               QStringLiteral("PC.local/1")),
             QStringLiteral("10:4207 AM1503-2002@PC.local/1"));
}

void TestMomentTexts::identifiersHoldDigitsAndTheComputersName()
{
    FakeClock clock;
    clock.advanceMicroseconds(42);
    MomentTexts moment(clock, QStringLiteral("shop-pc"));
    QCOMPARE(moment.nextIdentifier(), QStringLiteral("08000000004221112026@shop-pc"));
}

void TestMomentTexts::aClockThatStandsGivesNoIdentifierTwice()
{
    constexpr int Count = 10'000;
    const FakeClock clock;
    MomentTexts moment(clock, QStringLiteral("pc"));
    const QRegularExpression valid(QStringLiteral("^[0-9]{20}@pc$"));
    QSet<QString> seen;
    for (int i = 0; i < Count; ++i) {
        const QString identifier = moment.nextIdentifier();
        QVERIFY2(valid.match(identifier).hasMatch(), qPrintable(identifier));
        seen.insert(identifier);
    }
    QCOMPARE(seen.size(), Count);
}

void TestMomentTexts::aClockThatStepsBackGivesNoIdentifierTwice()
{
    FakeClock clock;
    MomentTexts moment(clock, QStringLiteral("pc"));
    QSet<QString> seen;
    for (int i = 0; i < 5; ++i) {
        seen.insert(moment.nextIdentifier());
        clock.advanceMicroseconds(-1);
    }
    QCOMPARE(seen.size(), 5);
}

void TestMomentTexts::theHourThatComesTwiceGivesNoIdentifierTwice()
{
    FakeClock clock;
    MomentTexts moment(clock, QStringLiteral("pc"));
    clock.offsetFromUtc = 7200;
    const QString inSummer = moment.nextIdentifier();
    // An hour later the clocks are put back: the time of day is the same again.
    clock.advanceMilliseconds(3'600'000);
    clock.offsetFromUtc = 3600;
    QVERIFY(moment.nextIdentifier() != inSummer);
}
