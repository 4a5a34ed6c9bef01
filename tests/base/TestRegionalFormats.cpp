#include "TestRegionalFormats.h"

#include "base/RegionalFormats.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The tests run in the C locale.

void TestRegionalFormats::plainLocaleHasDayMonthYear()
{
    const SystemFormats formats;
    QCOMPARE(formats.shortDate(QDateTime(QDate(2002, 3, 5), QTime(10, 42, 7))), u"05/03/2002"_s);
}

void TestRegionalFormats::plainLocaleHas24Hours()
{
    const SystemFormats formats;
    QCOMPARE(formats.longTime(QDateTime(QDate(2002, 3, 5), QTime(9, 4, 7))), u"09:04:07"_s);
    QCOMPARE(formats.longTime(QDateTime(QDate(2002, 3, 5), QTime(23, 59, 59))), u"23:59:59"_s);
}

void TestRegionalFormats::plainLocaleHasAPoint()
{
    QCOMPARE(SystemFormats().decimalSign(), u'.');
}
