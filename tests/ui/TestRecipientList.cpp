#include "TestRecipientList.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/AttachmentView.h"
#include "ui/RecipientView.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A shown window with rows of these names, all checked and "Waiting".
struct ListRig : WindowRig
{
    explicit ListRig(const QStringList &names, Language language = Language::English)
        : WindowRig(language)
    {
        show();
        std::vector<Recipient> rows;
        for (const QString &name : names) {
            Recipient row;
            row.number = QString::number(rows.size() + 1);
            row.name = name;
            row.address = name.toLower() + u"@example.net"_s;
            row.state = stateWord(RowState::Waiting, language);
            rows.push_back(row);
        }
        list().replaceAll(std::move(rows));
        core->w.form.setProjectModified(false);
        view().setFocus();
    }

    RecipientList &list() { return core->w.recipients; }
    RecipientView &view() { return get<RecipientView>("lstDestinatari"); }
    [[nodiscard]] QStringList names()
    {
        QStringList all;
        for (const Recipient &row : list().rows())
            all.append(row.name);
        return all;
    }
    [[nodiscard]] QList<bool> checks()
    {
        QList<bool> all;
        for (const Recipient &row : list().rows())
            all.append(row.checked);
        return all;
    }
    void clickHeading(Column column)
    {
        QHeaderView &header = *view().header();
        const int x = header.sectionViewportPosition(static_cast<int>(column)) + 10;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {x, header.viewport()->height() / 2});
    }
    void clickCheckBox(int position)
    {
        const QModelIndex index = view().model()->index(position - 1, 0);
        QStyleOptionViewItem option;
        option.rect = view().visualRect(index);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box =
            view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, box.center());
    }
    [[nodiscard]] QMenu *menu() { return view().findChild<QMenu *>(u"recipientMenu"_s); }
    void openMenu()
    {
        delete menu();
        QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20},
                                view().mapToGlobal(QPoint(20, 20)));
        QCoreApplication::sendEvent(view().viewport(), &event);
        QVERIFY(menu());
    }
    /// The entry of that text in the open menu, in a submenu when it is there.
    [[nodiscard]] QAction *entry(const QString &text)
    {
        QList<QAction *> entries = menu()->actions();
        for (QAction *const entry : menu()->actions()) {
            if (entry->menu())
                entries += entry->menu()->actions();
        }
        for (QAction *const entry : entries) {
            if (entry->text() == text)
                return entry;
        }
        qFatal("no entry %s", qPrintable(text));
    }
    /// Opens the context menu and triggers that entry.
    void choose(const QString &text)
    {
        openMenu();
        QVERIFY(entry(text)->isEnabled());
        entry(text)->trigger();
        delete menu();
    }
    void setState(int position, const QString &state) { list().setState(position, state); }
};

} // namespace

void TestRecipientList::columnsShareTheRoomAsDesigned()
{
    ListRig rig({u"A"_s});
    const RecipientView &view = rig.view();
    constexpr std::array Design{1764, 5821, 6350, 1940};
    int sum = 0;
    for (int column = 0; column < 4; ++column)
        sum += view.columnWidth(column);
    QVERIFY(sum <= view.viewport()->width());
    for (int column = 0; column < 4; ++column) {
        const double share = 1.0 * view.columnWidth(column) / sum;
        QVERIFY(qAbs(share - Design[static_cast<std::size_t>(column)] / 15875.0) < 0.01);
    }
}

void TestRecipientList::columnsGoOnFillingAListThatGrows()
{
    ListRig rig({u"A"_s});
    const RecipientView &view = rig.view();
    QCOMPARE(view.header()->length(), view.viewport()->width());
    const int before = view.columnWidth(1);
    rig.window->resize(rig.window->width() + 200, rig.window->height());
    QTRY_VERIFY(view.columnWidth(1) > before);
    QCOMPARE(view.header()->length(), view.viewport()->width());
}

void TestRecipientList::stateIsCentred()
{
    ListRig rig({u"A"_s});
    const QModelIndex state = rig.view().model()->index(0, 3);
    QCOMPARE(state.data(Qt::TextAlignmentRole).toInt(), int{Qt::AlignCenter});
}

void TestRecipientList::pictureFollowsTheImageIndex()
{
    ListRig rig({u"A"_s});
    const QModelIndex first = rig.view().model()->index(0, 0);
    const auto picture = [&](qint16 index) {
        rig.list().setCheckedWithImage(1, true, index);
        return first.data(Qt::DecorationRole).value<QIcon>();
    };
    QSet<qint64> known;
    for (const qint16 index : {2, 3, 4, 5}) {
        QVERIFY(!picture(index).isNull());
        known.insert(picture(index).cacheKey());
    }
    QCOMPARE(known.size(), 4);
    for (const qint16 index : {-1, 0, 1, 6, 32767})
        QVERIFY(picture(index).isNull());
}

void TestRecipientList::tooltipOfAStateIsTheServersReply()
{
    ListRig rig({u"A"_s});
    const QModelIndex state = rig.view().model()->index(0, 3);
    QVERIFY(!state.data(Qt::ToolTipRole).isValid());
    QVERIFY(!state.data(Qt::AccessibleDescriptionRole).isValid());
    rig.list().setAttempt(
        1, {Outcome::Refused, {SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"<a@b> is unknown"_s}, 0, 1, {}});
    rig.setState(1, u"Error!"_s);
    QCOMPARE(state.data(Qt::ToolTipRole).toString(), u"<p>550 5.1.1 &lt;a@b&gt; is unknown</p>"_s);
    QCOMPARE(state.data(Qt::AccessibleDescriptionRole).toString(), u"550 5.1.1 <a@b> is unknown"_s);
    QVERIFY(!rig.view().model()->index(0, 2).data(Qt::ToolTipRole).isValid());
}

void TestRecipientList::tooltipSaysWhoIsInDoubt_data()
{
    addLanguages();
}

void TestRecipientList::tooltipSaysWhoIsInDoubt()
{
    QFETCH(Language, language);
    ListRig rig({u"A"_s}, language);
    const QModelIndex state = rig.view().model()->index(0, 3);
    rig.list().setAttempt(1, {Outcome::InFlight, {}, 0, 1, {}});
    rig.setState(1, stateWord(RowState::Sending, language));
    QVERIFY(!state.data(Qt::ToolTipRole).isValid());
    rig.list().setAttempt(1, {Outcome::InDoubt, {SmtpVerb::Rcpt, 250, {}, u"Ok"_s}, 0, 1, {}});
    const QString text =
        language == Language::Italian
            ? u"in dubbio: la connessione è finita prima che il server rispondesse"_s
            : u"in doubt: the connection ended before the server answered"_s;
    QCOMPARE(state.data(Qt::ToolTipRole).toString(), u"<p>%1</p>"_s.arg(text));
    QCOMPARE(state.data(Qt::AccessibleDescriptionRole).toString(), text);
}

void TestRecipientList::clickOnAHeadingSortsAndShowsItsArrow()
{
    ListRig rig({u"Carla"_s, u"anna"_s, u"Bruno"_s});
    const QHeaderView &header = *rig.view().header();
    QCOMPARE(header.sortIndicatorSection(), 0);
    rig.clickHeading(Column::Name);
    QCOMPARE(rig.names(), QStringList({u"anna"_s, u"Bruno"_s, u"Carla"_s}));
    QCOMPARE(header.sortIndicatorSection(), 1);
    QCOMPARE(header.sortIndicatorOrder(), Qt::AscendingOrder);
    rig.clickHeading(Column::Name);
    QCOMPARE(rig.names(), QStringList({u"Carla"_s, u"Bruno"_s, u"anna"_s}));
    QCOMPARE(header.sortIndicatorOrder(), Qt::DescendingOrder);
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestRecipientList::clickOnTheNumberHeadingNeverChangesTheOrder()
{
    ListRig rig({u"Carla"_s, u"anna"_s});
    rig.clickHeading(Column::Name);
    rig.clickHeading(Column::Number);
    QCOMPARE(rig.names(), QStringList({u"anna"_s, u"Carla"_s}));
    QCOMPARE(rig.view().header()->sortIndicatorSection(), 1);
    QCOMPARE(rig.view().header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void TestRecipientList::sortingKeepsTheSelection()
{
    ListRig rig({u"Carla"_s, u"anna"_s, u"Bruno"_s});
    rig.view().select({1, 3});
    rig.clickHeading(Column::Name);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({2, 3}));
}

void TestRecipientList::clickOnACheckBoxFollowsTheImageRule()
{
    ListRig rig({u"A"_s, u"B"_s});
    rig.list().setCheckedWithImage(2, true, RowImage::AddedByHand);
    rig.clickCheckBox(2);
    QVERIFY(!rig.list().at(2).checked);
    QCOMPARE(rig.list().at(2).imageIndex, 5);
    QVERIFY(rig.list().at(1).checked);
    QVERIFY(rig.core->w.form.projectModified());
    rig.clickCheckBox(2);
    QVERIFY(rig.list().at(2).checked);
    QCOMPARE(rig.list().at(2).imageIndex, 4);
}

void TestRecipientList::spaceChecksWhenSomeSelectedRowIsUnchecked()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.list().setCheckedWithImage(2, false, RowImage::Unchecked);
    rig.list().setCheckedWithImage(3, false, RowImage::Unchecked);
    rig.view().select({1, 2});
    QTest::keyClick(&rig.view(), Qt::Key_Space);
    QCOMPARE(rig.checks(), QList<bool>({true, true, false}));
    QCOMPARE(rig.list().at(2).imageIndex, RowImage::Checked);
}

void TestRecipientList::spaceUnchecksWhenAllSelectedRowsAreChecked()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.view().select({1, 3});
    QTest::keyClick(&rig.view(), Qt::Key_Space);
    QCOMPARE(rig.checks(), QList<bool>({false, true, false}));
    QCOMPARE(rig.list().at(1).imageIndex, RowImage::Unchecked);
}

void TestRecipientList::deleteRemovesTheSelectedRows()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    rig.view().select({2, 3});
    QTest::keyClick(&rig.view(), Qt::Key_Delete);
    QCOMPARE(rig.names(), QStringList({u"A"_s, u"D"_s}));
    QCOMPARE(rig.list().at(2).number, u"2"_s);
    QVERIFY(rig.view().selectedPositions().empty());
}

void TestRecipientList::insertAddsARecipient()
{
    ListRig rig({u"B"_s});
    rig.core->prompts.expectText(u"Name of the new recipient:"_s, u"A"_s);
    rig.core->prompts.expectText(u"E-mail address of the new recipient:"_s, u"a@example.net"_s);
    QTest::keyClick(&rig.view(), Qt::Key_Insert);
    rig.core->prompts.answerAll();
    QCOMPARE(rig.names(), QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(rig.view().header()->sortIndicatorSection(), 1);
}

void TestRecipientList::listReachedByTabHasARowToWorkOn()
{
    ListRig rig({u"A"_s, u"B"_s});
    rig.get<QPushButton>("cmdAdd").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), &rig.view());
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({1}));
    QTest::keyClick(&rig.view(), Qt::Key_Space);
    QCOMPARE(rig.checks(), QList<bool>({false, true}));
}

void TestRecipientList::keysDoNothingWithoutASelection()
{
    ListRig rig({u"A"_s, u"B"_s});
    rig.view().select({});
    QTest::keyClick(&rig.view(), Qt::Key_Space);
    QTest::keyClick(&rig.view(), Qt::Key_Delete);
    QCOMPARE(rig.checks(), QList<bool>({true, true}));
}

void TestRecipientList::menuSelectsByState_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<RowState>("state");
    for (const Language language : {Language::English, Language::Italian}) {
        for (const RowState state : {RowState::Waiting, RowState::Sending, RowState::Sent,
                                     RowState::Error, RowState::NotSent})
            QTest::addRow("%s", qPrintable(stateWord(state, language))) << language << state;
    }
}

void TestRecipientList::menuSelectsByState()
{
    QFETCH(Language, language);
    QFETCH(RowState, state);
    ListRig rig({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s, u"F"_s}, language);
    const std::array states{RowState::Sent,    RowState::Waiting, RowState::Error,
                            RowState::NotSent, RowState::Sending, RowState::Sent};
    std::vector<int> expected;
    for (int position = 1; position <= 6; ++position) {
        const RowState own = states[static_cast<std::size_t>(position - 1)];
        rig.setState(position, stateWord(own, language));
        if (own == state)
            expected.push_back(position);
    }
    rig.view().selectAll();
    rig.choose(stateWord(state, language));
    QCOMPARE(rig.view().selectedPositions(), expected);
}

void TestRecipientList::menuSelectsTheRefusedForNowAndThoseInDoubt_data()
{
    addLanguages();
}

void TestRecipientList::menuSelectsTheRefusedForNowAndThoseInDoubt()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    ListRig rig({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}, language);
    const auto refuse = [&rig, language](int position, int code) {
        rig.list().setAttempt(position,
                              {Outcome::Refused, {SmtpVerb::Rcpt, code, {}, u"no"_s}, 0, 1, {}});
        rig.setState(position, stateWord(RowState::Error, language));
    };
    refuse(1, 550);
    refuse(2, 451);
    rig.setState(4, stateWord(RowState::Sending, language));
    rig.list().setAttempt(5, {Outcome::InFlight, {}, 0, 1, {}});
    rig.setState(5, stateWord(RowState::Sending, language));
    rig.choose(isItalian ? u"Rifiutati per ora"_s : u"Refused for now"_s);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({2}));
    rig.choose(isItalian ? u"In dubbio"_s : u"In doubt"_s);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({4}));
}

void TestRecipientList::statesOfTheOtherLanguageAreSelectedToo()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.setState(2, u"Inviato"_s);
    rig.setState(3, u"Sent"_s);
    rig.choose(u"Sent"_s);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({2, 3}));
}

void TestRecipientList::menuChecksUnchecksAndRemoves()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.view().select({1, 2});
    rig.choose(u"Uncheck"_s);
    QCOMPARE(rig.checks(), QList<bool>({false, false, true}));
    rig.view().select({2});
    rig.choose(u"Check"_s);
    QCOMPARE(rig.checks(), QList<bool>({false, true, true}));
    rig.choose(u"Remove"_s);
    QCOMPARE(rig.names(), QStringList({u"A"_s, u"C"_s}));
    rig.choose(u"Select all"_s);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({1, 2}));
}

void TestRecipientList::rowsStillToDoAreCheckedFromTheMenu()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.setState(1, u"Sent"_s);
    rig.setState(3, u"Error!"_s);
    rig.choose(u"Sent"_s);
    rig.choose(u"Uncheck"_s);
    QCOMPARE(rig.checks(), QList<bool>({false, true, true}));
}

void TestRecipientList::menuExportsAReportWheneverThereAreRows()
{
    ListRig rig({u"A"_s});
    rig.core->prompts.expectFile(u"Select the file for the report:"_s, {});
    rig.choose(u"Export report..."_s);
    rig.core->prompts.answerAll();
    rig.list().clear();
    rig.openMenu();
    QVERIFY(!rig.entry(u"Export report..."_s)->isEnabled());
}

void TestRecipientList::selectedRowsAreCopiedAsText()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s});
    rig.setState(3, u"Error!"_s);
    rig.list().setAttempt(
        3, {Outcome::Refused, {SmtpVerb::Rcpt, 550, {}, u"no such user"_s}, 0, 1, {}});
    rig.view().select({1, 3});
    QTest::keyClick(&rig.view(), Qt::Key_C, Qt::ControlModifier);
    const QString expected = u"1\tA\ta@example.net\tWaiting\n"
                             "3\tC\tc@example.net\tError!\t550 no such user\n"_s;
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    QGuiApplication::clipboard()->clear();
    rig.choose(u"Copy as text"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
}

void TestRecipientList::scatteredRowsAreReadInTheirOrder()
{
    QStringList names;
    for (int i = 1; i <= 100; ++i)
        names.append(QString::number(i));
    ListRig rig(names);
    std::vector<int> odd;
    for (int position = 1; position <= 100; position += 2)
        odd.push_back(position);
    rig.view().select(odd);
    QCOMPARE(rig.view().selectedPositions(), odd);
}

void TestRecipientList::changesArePublishedTogether()
{
    ListRig rig({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    QSignalSpy changes(rig.view().model(), &QAbstractItemModel::dataChanged);
    for (const int position : {3, 2, 3})
        rig.setState(position, u"Sent"_s);
    QVERIFY(changes.isEmpty());
    QVERIFY(changes.wait());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].toModelIndex().row(), 1);
    QCOMPARE(changes[0][1].toModelIndex().row(), 2);
}

void TestRecipientList::changesOfAnotherMomentArePublishedAgain()
{
    ListRig rig({u"A"_s, u"B"_s});
    QSignalSpy changes(rig.view().model(), &QAbstractItemModel::dataChanged);
    rig.setState(1, u"Sent"_s);
    QVERIFY(changes.wait());
    rig.setState(2, u"Sent"_s);
    QVERIFY(changes.wait());
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[1][0].toModelIndex().row(), 1);
}

void TestRecipientList::rowBeingSentIsCurrentAndInView()
{
    QStringList names;
    for (int i = 1; i <= 500; ++i)
        names.append(QString::number(i));
    ListRig rig(names);
    rig.list().makeCurrent(400);
    rig.setState(400, u"Sending..."_s);
    QTRY_COMPARE(rig.view().currentIndex().row(), 399);
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({400}));
    const QRect shown = rig.view().visualRect(rig.view().currentIndex());
    QVERIFY(rig.view().viewport()->rect().contains(shown.center()));
}

void TestRecipientList::duringARunTheListCanOnlyBeLookedAt()
{
    WindowRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.core->startSending();
    auto &view = rig.get<RecipientView>("lstDestinatari");
    view.select({3});
    for (const int key : {Qt::Key_Space, Qt::Key_Delete, Qt::Key_Insert})
        QTest::keyClick(&view, static_cast<Qt::Key>(key));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {20, 20},
                            view.mapToGlobal(QPoint(20, 20)));
    QCoreApplication::sendEvent(view.viewport(), &event);
    QVERIFY(!view.findChild<QMenu *>(u"recipientMenu"_s));
    Q_EMIT view.header()->sectionClicked(1);
    QCOMPARE(rig.core->w.recipients.count(), 3);
    QVERIFY(rig.core->w.recipients.at(3).checked);
    QCOMPARE(rig.core->w.recipients.sortColumn(), Column::Number);
    const QModelIndex third = view.model()->index(2, 0);
    QVERIFY(!third.flags().testFlag(Qt::ItemIsUserCheckable));
    QVERIFY(!view.model()->setData(third, Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(rig.core->prompts.inputBoxes.isEmpty());
}

void TestRecipientList::attachmentIsSelectedWhenItIsAdded()
{
    WindowRig rig;
    rig.show();
    rig.core->w.attachmentCommands.attach(u"/a.pdf"_s);
    rig.core->w.attachmentCommands.attach(u"/b.pdf"_s);
    auto &view = rig.get<AttachmentView>("lstAllegati");
    QCOMPARE(view.topLevelItemCount(), 2);
    QCOMPARE(view.selectedPlace(), 1);
    QCOMPARE(view.topLevelItem(1)->toolTip(0), u"/b.pdf"_s);
}

void TestRecipientList::attachmentsOfALoadedProjectAreNotSelected()
{
    WindowRig rig;
    rig.show();
    rig.core->w.attachments.replaceAll({u"/a.pdf"_s});
    QCOMPARE(rig.get<AttachmentView>("lstAllegati").topLevelItemCount(), 1);
    QCOMPARE(rig.get<AttachmentView>("lstAllegati").selectedPlace(), -1);
}

void TestRecipientList::deleteRemovesTheSelectedAttachment()
{
    WindowRig rig;
    rig.show();
    rig.core->w.attachmentCommands.attach(u"/a.pdf"_s);
    rig.core->w.attachmentCommands.attach(u"/b.pdf"_s);
    auto &view = rig.get<AttachmentView>("lstAllegati");
    view.setCurrentItem(view.topLevelItem(0));
    QTest::keyClick(&view, Qt::Key_Delete);
    QCOMPARE(rig.core->w.attachments.paths(), {u"/b.pdf"_s});
}
