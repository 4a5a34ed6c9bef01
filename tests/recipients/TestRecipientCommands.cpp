#include "TestRecipientCommands.h"

#include "RecipientsRig.h"
#include "support/ItalianTexts.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString NamePrompt = u"Name of the new recipient:"_s;
const QString AddressPrompt = u"E-mail address of the new recipient:"_s;

void add(RecipientsRig &rig, const QString &name, const QString &address)
{
    rig.prompts.expectText(NamePrompt, name);
    rig.prompts.expectText(AddressPrompt, address);
    rig.commands.cmdAdd_Click();
    rig.prompts.answerAll();
}

} // namespace

void TestRecipientCommands::addingToAnEmptyListGivesOne()
{
    RecipientsRig rig;
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    QCOMPARE(rig.numbers(), QStringList{u"1"_s});
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList{u"New recipient added: 'Mario' - mario@example.com"_s});
    for (const InputBox &box : rig.prompts.inputBoxes)
        QCOMPARE(box.title, u"New recipient"_s);
}

void TestRecipientCommands::addingToAListOfSevenGivesEightAlsoWhenItIsSorted()
{
    RecipientsRig rig;
    rig.fill({u"G"_s, u"F"_s, u"E"_s, u"D"_s, u"C"_s, u"B"_s, u"A"_s});
    rig.list.sort(Column::Name, Qt::AscendingOrder);
    add(rig, u"Dario"_s, u"dario@example.com"_s);
    QCOMPARE(rig.list.count(), 8);
    QCOMPARE(rig.list.at(5).name, u"Dario"_s);
    QCOMPARE(rig.list.at(5).number, u"8"_s);
}

void TestRecipientCommands::addedRowIsWaitingCheckedAndHasItsPicture()
{
    RecipientsRig rig;
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    const Recipient &row = rig.list.at(1);
    QCOMPARE(row.name, u"Mario"_s);
    QCOMPARE(row.address, u"mario@example.com"_s);
    QCOMPARE(row.state, u"Waiting"_s);
    QVERIFY(row.checked);
    QCOMPARE(row.imageIndex, qint16(4));
}

void TestRecipientCommands::addedRowIsSortedByName()
{
    RecipientsRig rig;
    rig.fill({u"Zeno"_s, u"Anna"_s});
    rig.list.sort(Column::Address, Qt::DescendingOrder);
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    QCOMPARE(rig.names(), (QStringList{u"Anna"_s, u"Mario"_s, u"Zeno"_s}));
    QCOMPARE(rig.list.sortColumn(), Column::Name);
    QCOMPARE(rig.list.sortOrder(), Qt::AscendingOrder);
}

void TestRecipientCommands::nameAndAddressAreKeptAsTyped()
{
    RecipientsRig rig;
    add(rig, u"  Rossi, \"Mario\" "_s, u" mario@example.com "_s);
    QCOMPARE(rig.names(), QStringList{u"  Rossi, \"Mario\" "_s});
    QCOMPARE(rig.addresses(), QStringList{u" mario@example.com "_s});
}

void TestRecipientCommands::sameAddressMayBeAddedAgain()
{
    RecipientsRig rig;
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"2"_s}));
}

void TestRecipientCommands::emptyNameEndsTheCommand()
{
    RecipientsRig rig;
    rig.prompts.expectText(NamePrompt, {});
    rig.commands.cmdAdd_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(!rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientCommands::nameAndThenNoAddressAddsNothing()
{
    RecipientsRig rig;
    add(rig, u"Mario"_s, {});
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(!rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientCommands::invalidAddressIsAskedForAgainAndTheNameIsNot()
{
    RecipientsRig rig;
    rig.prompts.expectText(NamePrompt, u"Mario"_s);
    rig.prompts.expectText(AddressPrompt, u"mario@example"_s);
    rig.prompts.expectText(AddressPrompt, u"mario"_s);
    rig.prompts.expectText(AddressPrompt, u"mario@example.com"_s);
    rig.commands.cmdAdd_Click();
    rig.prompts.answerAll();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 2);
    QCOMPARE(notices[0].icon, Icon::Exclamation);
    QCOMPARE(notices[0].title, u"New recipient"_s);
    QCOMPARE(notices[0].text, u"'mario@example' isn't a valid e-mail address."_s);
    QCOMPARE(notices[1].text, u"'mario' isn't a valid e-mail address."_s);
    QCOMPARE(rig.names(), QStringList{u"Mario"_s});
    QCOMPARE(rig.addresses(), QStringList{u"mario@example.com"_s});
}

void TestRecipientCommands::invalidAddressMayBeGivenUp()
{
    RecipientsRig rig;
    rig.prompts.expectText(NamePrompt, u"Mario"_s);
    rig.prompts.expectText(AddressPrompt, u"mario"_s);
    rig.prompts.expectText(AddressPrompt, {});
    rig.commands.cmdAdd_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(!rig.form.projectModified());
}

void TestRecipientCommands::boxesAreItalianInItalian()
{
    const ItalianTexts italian;
    RecipientsRig rig(Language::Italian);
    rig.prompts.expectText(u"Nome del nuovo destinatario:"_s, u"Mario"_s);
    rig.prompts.expectText(u"Indirizzo e-mail del nuovo destinatario:"_s, u"mario"_s);
    rig.prompts.expectText(u"Indirizzo e-mail del nuovo destinatario:"_s, u"mario@example.com"_s);
    rig.commands.cmdAdd_Click();
    rig.prompts.answerAll();
    for (const InputBox &box : rig.prompts.inputBoxes)
        QCOMPARE(box.title, u"Nuovo destinatario"_s);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].title, u"Nuovo destinatario"_s);
    QCOMPARE(notices[0].text, u"'mario' non è un indirizzo e-mail valido."_s);
    QCOMPARE(rig.list.at(1).state, u"Attesa"_s);
    QCOMPARE(rig.logged(), QStringList{u"New recipient added: 'Mario' - mario@example.com"_s});
}

void TestRecipientCommands::answerAfterTheProjectWasReplacedAddsNothing()
{
    RecipientsRig rig;
    rig.prompts.expectText(NamePrompt, u"Mario"_s);
    rig.prompts.expectText(AddressPrompt, u"mario@example.com"_s);
    rig.commands.cmdAdd_Click();
    rig.prompts.answerOne();
    rig.form.countProjectReplaced();
    rig.prompts.answerOne();
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(!rig.form.projectModified());
}

void TestRecipientCommands::answerAfterARunHasStartedAddsNothing()
{
    RecipientsRig rig;
    rig.prompts.expectText(NamePrompt, u"Mario"_s);
    rig.commands.cmdAdd_Click();
    rig.form.setRunState(RunState::Waiting, "a test");
    rig.prompts.answerAll();
    QCOMPARE(rig.list.count(), 0);
}

void TestRecipientCommands::severalAreAddedAsByHand()
{
    RecipientsRig rig;
    rig.fill({u"Mara"_s});
    QSignalSpy rowsChanged(&rig.list, &RecipientList::rowsChanged);
    rig.commands.add({{u"Zoe"_s, u"zoe@example.com"_s},
                      {u"Ada"_s, u"mara@example.com"_s},
                      {u" "_s, u"john smith@example.com"_s}});
    QCOMPARE(rig.names(), (QStringList{u" "_s, u"Ada"_s, u"Mara"_s, u"Zoe"_s}));
    QCOMPARE(rig.numbers(), (QStringList{u"4"_s, u"3"_s, u"1"_s, u"2"_s}));
    QCOMPARE(rig.list.at(4).state, u"Waiting"_s);
    QCOMPARE(rig.list.at(4).imageIndex, RowImage::AddedByHand);
    QVERIFY(rig.list.at(4).checked);
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.logged(), (QStringList{u"New recipient added: 'Zoe' - zoe@example.com"_s,
                                        u"New recipient added: 'Ada' - mara@example.com"_s,
                                        u"New recipient added: ' ' - john smith@example.com"_s}));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"Recipients added: 3"_s});
    // The rows come together, and are sorted once.
    QCOMPARE(rowsChanged.count(), 2);
}

void TestRecipientCommands::addingSeveralLeavesOutInvalidAddresses()
{
    RecipientsRig rig;
    rig.commands.add({{u"A"_s, u"nowhere"_s}, {u"B"_s, u"b@example.com"_s}, {u"C"_s, {}}});
    QCOMPARE(rig.names(), QStringList{u"B"_s});
    QCOMPARE(rig.numbers(), QStringList{u"1"_s});
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Information);
    QCOMPARE(notices.front().text, u"Recipients added: 1\r\n"
                                   "These recipients couldn't be added:\r\nA - nowhere\r\nC - "_s);
}

void TestRecipientCommands::addingOnlyInvalidAddressesChangesNothing()
{
    RecipientsRig rig;
    rig.commands.add({{u"A"_s, u"nowhere"_s}});
    QCOMPARE(rig.list.count(), 0);
    QVERIFY(!rig.form.projectModified());
    QVERIFY(rig.logged().isEmpty());
}

void TestRecipientCommands::removingRowsTwoAndThreeOfFourLeavesOneAndTwo()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    rig.commands.cmdRemove_Click({2, 3});
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"D"_s}));
    QCOMPARE(rig.numbers(), (QStringList{u"1"_s, u"2"_s}));
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.logged(), (QStringList{u"The recipient 'B' has been removed"_s,
                                        u"The recipient 'C' has been removed"_s}));
}

void TestRecipientCommands::removingNothingStillMarksTheProject()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    rig.commands.cmdRemove_Click({});
    QCOMPARE(rig.list.count(), 1);
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestRecipientCommands::checkChangesTheSelectedRowsAlone()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s, u"C"_s}, RowImage::Unchecked);
    rig.commands.cmdCheckAll_Click({1, 3});
    QVERIFY(rig.list.at(1).checked);
    QCOMPARE(rig.list.at(1).imageIndex, qint16(2));
    QVERIFY(!rig.list.at(2).checked);
    QCOMPARE(rig.list.at(2).imageIndex, qint16(3));
    QVERIFY(rig.list.at(3).checked);
    QVERIFY(rig.form.projectModified());
}

void TestRecipientCommands::uncheckChangesTheSelectedRowsAlone()
{
    RecipientsRig rig;
    rig.fill({u"A"_s, u"B"_s});
    rig.commands.cmdUncheckAll_Click({2});
    QVERIFY(rig.list.at(1).checked);
    QCOMPARE(rig.list.at(1).imageIndex, qint16(2));
    QVERIFY(!rig.list.at(2).checked);
    QCOMPARE(rig.list.at(2).imageIndex, qint16(3));
    QVERIFY(rig.form.projectModified());
}

void TestRecipientCommands::checkWithNothingSelectedStillMarksTheProject()
{
    RecipientsRig rig;
    rig.fill({u"A"_s}, RowImage::Unchecked);
    rig.commands.cmdCheckAll_Click({});
    QVERIFY(!rig.list.at(1).checked);
    QVERIFY(rig.form.projectModified());
}

void TestRecipientCommands::uncheckWithNothingSelectedStillMarksTheProject()
{
    RecipientsRig rig;
    rig.fill({u"A"_s});
    rig.commands.cmdUncheckAll_Click({});
    QVERIFY(rig.list.at(1).checked);
    QVERIFY(rig.form.projectModified());
}

void TestRecipientCommands::uncheckingAHandAddedRowGivesFive()
{
    RecipientsRig rig;
    add(rig, u"Mario"_s, u"mario@example.com"_s);
    rig.commands.lstDestinatari_ItemCheck(1, false);
    QVERIFY(!rig.list.at(1).checked);
    QCOMPARE(rig.list.at(1).imageIndex, qint16(5));
    rig.commands.lstDestinatari_ItemCheck(1, true);
    QVERIFY(rig.list.at(1).checked);
    QCOMPARE(rig.list.at(1).imageIndex, qint16(4));
}

void TestRecipientCommands::checkOnTheSameRowGivesTwoWhateverItWas_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, 0, 2, 3, 4, 5, 300})
        QTest::addRow("%d", index) << index;
}

void TestRecipientCommands::checkOnTheSameRowGivesTwoWhateverItWas()
{
    QFETCH(const int, index);
    RecipientsRig rig;
    rig.fill({u"A"_s}, static_cast<qint16>(index));
    rig.commands.cmdCheckAll_Click({1});
    QCOMPARE(rig.list.at(1).imageIndex, qint16(2));
    rig.list.setCheckedWithImage(1, true, static_cast<qint16>(index));
    rig.commands.cmdUncheckAll_Click({1});
    QCOMPARE(rig.list.at(1).imageIndex, qint16(3));
}

void TestRecipientCommands::anyIndexMovesByTheSameRule_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-7, 0, 1, 2, 3, 9, 1000})
        QTest::addRow("%d", index) << index;
}

void TestRecipientCommands::anyIndexMovesByTheSameRule()
{
    QFETCH(const int, index);
    RecipientsRig rig;
    rig.fill({u"A"_s}, static_cast<qint16>(index));
    rig.commands.lstDestinatari_ItemCheck(1, false);
    QCOMPARE(rig.list.at(1).imageIndex, static_cast<qint16>(index + 1));
    rig.commands.lstDestinatari_ItemCheck(1, true);
    rig.commands.lstDestinatari_ItemCheck(1, true);
    QCOMPARE(rig.list.at(1).imageIndex, static_cast<qint16>(index - 1));
}

void TestRecipientCommands::checkingARowMarksTheProject()
{
    for (const bool checked : {true, false}) {
        RecipientsRig rig;
        rig.fill({u"A"_s});
        rig.commands.lstDestinatari_ItemCheck(1, checked);
        QVERIFY(rig.form.projectModified());
    }
}

void TestRecipientCommands::clickingNameTwiceSortsAndThenReverses()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"C"_s, u"A"_s});
    rig.commands.lstDestinatari_ColumnClick(2);
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    rig.commands.lstDestinatari_ColumnClick(2);
    QCOMPARE(rig.names(), (QStringList{u"C"_s, u"B"_s, u"A"_s}));
    rig.commands.lstDestinatari_ColumnClick(2);
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
}

void TestRecipientCommands::clickingNumberNeverChangesTheOrder()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"C"_s, u"A"_s});
    rig.commands.lstDestinatari_ColumnClick(1);
    rig.commands.lstDestinatari_ColumnClick(1);
    QCOMPARE(rig.names(), (QStringList{u"B"_s, u"C"_s, u"A"_s}));
    QCOMPARE(rig.list.sortOrder(), Qt::AscendingOrder);
    rig.commands.lstDestinatari_ColumnClick(2);
    rig.commands.lstDestinatari_ColumnClick(1);
    QCOMPARE(rig.names(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(rig.list.sortColumn(), Column::Name);
}

void TestRecipientCommands::clickingAnotherColumnKeepsTheOrder()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"C"_s, u"A"_s});
    rig.commands.lstDestinatari_ColumnClick(2);
    rig.commands.lstDestinatari_ColumnClick(2);
    rig.commands.lstDestinatari_ColumnClick(3);
    QCOMPARE(rig.list.sortColumn(), Column::Address);
    QCOMPARE(rig.list.sortOrder(), Qt::DescendingOrder);
    QCOMPARE(rig.names(), (QStringList{u"C"_s, u"B"_s, u"A"_s}));
    rig.commands.lstDestinatari_ColumnClick(4);
    QCOMPARE(rig.list.sortColumn(), Column::State);
}

void TestRecipientCommands::clickingBesideTheColumnsDoesNothing()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"A"_s});
    for (const int place : {-1, 0, 5})
        rig.commands.lstDestinatari_ColumnClick(place);
    QCOMPARE(rig.names(), (QStringList{u"B"_s, u"A"_s}));
    QCOMPARE(rig.list.sortColumn(), Column::Number);
}

void TestRecipientCommands::sortingDoesNotMarkTheProject()
{
    RecipientsRig rig;
    rig.fill({u"B"_s, u"A"_s});
    rig.commands.lstDestinatari_ColumnClick(2);
    QVERIFY(!rig.form.projectModified());
}
