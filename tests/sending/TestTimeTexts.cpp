#include "TestTimeTexts.h"

#include "sending/TimeTexts.h"

#include <QTest>

void TestTimeTexts::durations_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << QStringLiteral("00:00");
    QTest::newRow("59 s") << 59 << QStringLiteral("00:59");
    QTest::newRow("an hour is still minutes") << 3600 << QStringLiteral("60:00");
    QTest::newRow("an hour and a second") << 3601 << QStringLiteral("1:00:01");
    QTest::newRow("ten hours") << 36000 << QStringLiteral("10:00:00");
    QTest::newRow("950 s") << 950 << QStringLiteral("15:50");
    QTest::newRow("negative values keep their sign") << -65 << QStringLiteral("-01:-05");
}

void TestTimeTexts::durations()
{
    QFETCH(int, seconds);
    QTEST(durationText(seconds), "text");
}

void TestTimeTexts::countdowns_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("125") << 125 << QStringLiteral("2 minutes...");
    QTest::newRow("120") << 120 << QStringLiteral("2 minutes...");
    QTest::newRow("119") << 119 << QStringLiteral("1 minutes...");
    QTest::newRow("60") << 60 << QStringLiteral("1 minutes...");
    QTest::newRow("59") << 59 << QStringLiteral("59 seconds...");
    QTest::newRow("1") << 1 << QStringLiteral("1 seconds...");
}

void TestTimeTexts::countdowns()
{
    QFETCH(int, seconds);
    QTEST(countdownText(seconds), "text");
}

void TestTimeTexts::theEstimateOfTheExample()
{
    // Three waits of five minutes, and 25 messages of two seconds.
    QCOMPARE(remainingSeconds({10, 5, 25, 4, 300, 2}), std::optional<qint32>(950));
}

void TestTimeTexts::anEstimateThatOverflowsSixteenBitsIsNone_data()
{
    QTest::addColumn<int>("packetSize");
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("duration");
    QTest::newRow("packet size and recipients") << 20000 << 1 << 20000 << 1;
    QTest::newRow("duration times recipients") << 10 << 1 << 1000 << 33;
    QTest::newRow("delay in seconds") << 10 << 547 << 10 << 1;
}

void TestTimeTexts::anEstimateThatOverflowsSixteenBitsIsNone()
{
    QFETCH(int, packetSize);
    QFETCH(int, delay);
    QFETCH(int, left);
    QFETCH(int, duration);
    const auto narrow = [](int value) { return static_cast<qint16>(value); };
    QVERIFY(!remainingSeconds(
        {narrow(packetSize), narrow(delay), narrow(left), 0, 1, narrow(duration)}));
}

void TestTimeTexts::aPacketSizeOfZeroHasNoEstimate()
{
    QVERIFY(!remainingSeconds({0, 5, 25, 4, 300, 2}));
}

void TestTimeTexts::theLastPacketNeedsNoWait()
{
    // Ten left, room for ten: (10 + 10 - 10 - 1) / 10 is no wait.
    QCOMPARE(remainingSeconds({10, 5, 10, 10, 300, 2}), std::optional<qint32>(20));
}

void TestTimeTexts::secondsAreWrittenAndReadWithOneSign_data()
{
    QTest::addColumn<uint>("milliseconds");
    QTest::addColumn<QChar>("sign");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("rounded");
    QTest::newRow("point") << 2734U << QChar(u'.') << QStringLiteral("2.734") << 3;
    QTest::newRow("comma") << 2734U << QChar(u',') << QStringLiteral("2,734") << 3;
    QTest::newRow("nothing") << 0U << QChar(u',') << QStringLiteral("0") << 0;
    QTest::newRow("an hour") << 3600000U << QChar(u'.') << QStringLiteral("3600") << 3600;
}

void TestTimeTexts::secondsAreWrittenAndReadWithOneSign()
{
    QFETCH(uint, milliseconds);
    QFETCH(QChar, sign);
    QFETCH(QString, text);
    QFETCH(int, rounded);
    QCOMPARE(secondsText(milliseconds, sign), text);
    QCOMPARE(roundedSeconds(text, sign), std::optional<qint16>(static_cast<qint16>(rounded)));
}

void TestTimeTexts::halvesAreRoundedToEven()
{
    QCOMPARE(roundedSeconds(QStringLiteral("2.5"), u'.'), std::optional<qint16>(2));
    QCOMPARE(roundedSeconds(QStringLiteral("3.5"), u'.'), std::optional<qint16>(4));
}

void TestTimeTexts::whatIsNoDurationIsNone()
{
    QVERIFY(!roundedSeconds(QStringLiteral("-"), u'.'));
    QVERIFY(!roundedSeconds(QStringLiteral("40000"), u'.'));
    QVERIFY(!roundedSeconds({}, u'.'));
}
