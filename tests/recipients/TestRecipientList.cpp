#include "TestRecipientList.h"

#include "RecipientsRig.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

void TestRecipientList::beginsEmptyAndSortedByNumber()
{
    const RecipientList list;
    QCOMPARE(list.count(), 0);
    QCOMPARE(list.sortColumn(), Column::Number);
    QCOMPARE(list.sortOrder(), Qt::AscendingOrder);
    QCOMPARE(list.currentRow(), 0);
    QCOMPARE(list.rowInView(), 0);
}

void TestRecipientList::rowsAreCountedFromOne()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    QCOMPARE(rig.list.at(1).name, u"A"_s);
    QCOMPARE(rig.list.at(2).name, u"B"_s);
}

void TestRecipientList::rowKeepsItsIdentityWhereverItMoves()
{
    RecipientsRig rig;
    rig.fill({u"C"_s, u"A"_s, u"B"_s});
    const quint64 id = rig.list.at(1).id;
    QCOMPARE(rig.list.positionOf(id, 1), 1);
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(rig.list.positionOf(id, 1), 3); // a wrong hint does no harm
    QCOMPARE(rig.list.positionOf(id, 0), 3);
    QCOMPARE(rig.list.positionOf(id, 99), 3);
    rig.list.remove({1});
    QCOMPARE(rig.list.positionOf(id), 2);
    rig.list.remove({2});
    QCOMPARE(rig.list.positionOf(id, 2), 0);
}

void TestRecipientList::identitiesAreNeverUsedTwice()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    const quint64 first = rig.list.at(1).id;
    rig.list.clear();
    rig.fill({u"A"_s});
    QVERIFY(rig.list.at(1).id != first);
    std::vector<Recipient> rows{rig.list.at(1)};
    rig.list.replaceAll(rows);
    QCOMPARE(rig.list.positionOf(rows[0].id), 0);
}

void TestRecipientList::positionsOfChosenRowsAreAscending()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s, u"A"_s});
    const auto named = [&rig](const QString &name) {
        return rig.list.positionsWhere([&name](const Recipient &row) { return row.name == name; });
    };
    QCOMPARE(named(u"A"_s), std::vector<int>({1, 3}));
    QCOMPARE(named(u"C"_s), std::vector<int>());
}

void TestRecipientList::checkedRowsAreCountedFromAPosition()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    rig.list.setCheckedWithImage(2, false, RowImage::Unchecked);
    QCOMPARE(rig.list.checkedFrom(1), 3);
    QCOMPARE(rig.list.checkedFrom(2), 2);
    QCOMPARE(rig.list.checkedFrom(4), 1);
    QCOMPARE(rig.list.checkedFrom(5), 0);
    QCOMPARE(rig.list.checkedFrom(99), 0);
    QCOMPARE(rig.list.checkedFrom(0), 3);
    QCOMPARE(rig.list.checkedFrom(-7), 3);
}

void TestRecipientList::sortIgnoresLetterCase()
{
    RecipientsRig rig;
    rig.fill({u"bruno"_s, u"Carla"_s, u"anna"_s, u"Bianca"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(rig.names(), (QStringList{u"anna"_s, u"Bianca"_s, u"bruno"_s, u"Carla"_s}));
    rig.list.sort(Column::Name, Qt::DescendingOrder);
    QCOMPARE(rig.names(), (QStringList{u"Carla"_s, u"bruno"_s, u"Bianca"_s, u"anna"_s}));
}

void TestRecipientList::sortFollowsTheLocale()
{
    RecipientsRig rig;
    rig.fill({u"Zoe"_s, u"Érica"_s, u"Fabio"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(rig.names(), (QStringList{u"Érica"_s, u"Fabio"_s, u"Zoe"_s}));

    RecipientList swedish{QLocale(QLocale::Swedish)};
    for (const QString &name : {u"Örjan"_s, u"Zoe"_s, u"Anna"_s}) {
        Recipient row;
        row.name = name;
        swedish.append(row);
    }
    swedish.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(swedish.at(3).name, u"Örjan"_s);
}

void TestRecipientList::sortIsStableInBothOrders()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"A"_s, u"b"_s, u"a"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(rig.numbers(), (QStringList{u"2"_s, u"4"_s, u"1"_s, u"3"_s}));
    rig.list.sort(Column::Name, Qt::DescendingOrder);
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"3"_s, u"2"_s, u"4"_s}));
}

void TestRecipientList::sortTakesTheTextOfTheColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("name") << static_cast<int>(Column::Name) << QStringList{u"A"_s, u"B"_s, u"C"_s};
    QTest::newRow("address") << static_cast<int>(Column::Address)
                             << QStringList{u"C"_s, u"A"_s, u"B"_s};
    QTest::newRow("state") << static_cast<int>(Column::State)
                           << QStringList{u"B"_s, u"C"_s, u"A"_s};
    QTest::newRow("number") << static_cast<int>(Column::Number)
                            << QStringList{u"C"_s, u"B"_s, u"A"_s};
}

void TestRecipientList::sortTakesTheTextOfTheColumn()
{
    QFETCH(const int, column);
    QFETCH(const QStringList, names);
    RecipientsRig rig;
    rig.list.append({0, u"3"_s, u"A"_s, u"m@example.com"_s, u"Waiting"_s, true, 2, {}});
    rig.list.append({0, u"2"_s, u"B"_s, u"z@example.com"_s, u"Error!"_s, true, 2, {}});
    rig.list.append({0, u"1"_s, u"C"_s, u"a@example.com"_s, u"Sent"_s, true, 2, {}});
    rig.list.sort(static_cast<Column>(column), Qt::AscendingOrder);
    QCOMPARE(rig.names(), names);
    QCOMPARE(rig.list.sortColumn(), static_cast<Column>(column));
}

void TestRecipientList::numbersAreSortedAsTexts()
{
    RecipientsRig rig;
    rig.fill(QStringList(10, u"x"_s));
    rig.list.sort(Column::Number, Qt::AscendingOrder);
    QCOMPARE(rig.numbers().mid(0, 3), (QStringList{u"1"_s, u"10"_s, u"2"_s}));
}

void TestRecipientList::stateChangesNeverSort()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    rig.list.sort(Column::State, Qt::AscendingOrder);
    rig.list.setState(2, u"Error!"_s);
    rig.list.setState(1, u"Sent"_s);
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(rig.list.at(2).state, u"Error!"_s);
}

void TestRecipientList::addingAtTheEndDoesNotSort()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"C"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    rig.fill({u"A"_s});
    QCOMPARE(rig.names(), (QStringList{u"B"_s, u"C"_s, u"A"_s}));
}

void TestRecipientList::replacingKeepsTheOrderAndForgetsTheSort()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    rig.list.sort(Column::Name, Qt::DescendingOrder);
    rig.list.makeCurrent(1);
    Recipient z;
    z.name = u"Z"_s;
    Recipient y;
    y.name = u"Y"_s;
    rig.list.replaceAll({z, y});
    QCOMPARE(rig.names(), (QStringList{u"Z"_s, u"Y"_s}));
    QCOMPARE(rig.list.sortColumn(), Column::Number);
    QCOMPARE(rig.list.sortOrder(), Qt::AscendingOrder);
    QCOMPARE(rig.list.currentRow(), 0);
}

void TestRecipientList::removedRowsCloseUp()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
    rig.list.remove({});
    QCOMPARE(rig.list.count(), 5);
    rig.list.remove({1, 3, 4});
    QCOMPARE(rig.names(), (QStringList{u"B"_s, u"E"_s}));
    QCOMPARE(rig.numbers(), (QStringList{u"2"_s, u"5"_s}));
}

void TestRecipientList::numberingFollowsThePositions()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"A"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    QCOMPARE(rig.numbers(), (QStringList{u"2"_s, u"1"_s}));
    rig.list.renumber();
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"2"_s}));
}

void TestRecipientList::changesAreSaidByPosition()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    const QSignalSpy rows(&rig.list, &RecipientList::rowsChanged);
    const QSignalSpy row(&rig.list, &RecipientList::rowChanged);
    rig.list.setState(2, u"Sent"_s);
    rig.list.setAttempt(1, {Outcome::Sent, {SmtpVerb::Rcpt, 250, {}, u"ok"_s}, 0, 1, {}});
    rig.list.setCheckedWithImage(2, false, RowImage::Unchecked);
    QCOMPARE(rows.size(), 0);
    QCOMPARE(row.size(), 3);
    QCOMPARE(row[0][0].toInt(), 2);
    QCOMPARE(row[1][0].toInt(), 1);
    QCOMPARE(row[2][0].toInt(), 2);
    QCOMPARE(rig.list.at(1).attempt.reply.code, 250);
    rig.list.remove({1});
    QCOMPARE(rows.size(), 1);
}

void TestRecipientList::currentRowIsForgottenWithItsRow()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    rig.list.makeCurrent(2);
    QCOMPARE(rig.list.currentRow(), 2);
    QCOMPARE(rig.list.rowInView(), 2);
    rig.list.scrollTo(1);
    QCOMPARE(rig.list.currentRow(), 2);
    QCOMPARE(rig.list.rowInView(), 1);
    rig.list.remove({2});
    QCOMPARE(rig.list.currentRow(), 0);
    QCOMPARE(rig.list.rowInView(), 0);
}
