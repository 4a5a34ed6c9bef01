#include "TestRunBarWindow.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/RecipientView.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

const QStringList SomeLeft{u"Sent"_s, u"Sending..."_s, u"Error!"_s, u"Waiting"_s, u"Waiting"_s};
const QStringList NobodyLeft{u"Sent"_s, u"Error!"_s, u"Sent"_s};

/// A shown window with checked rows in states of the test's choice.
struct BarRig : WindowRig
{
    explicit BarRig(const QStringList &states, Language language = Language::English)
        : WindowRig(language)
    {
        show();
        fill(states);
    }

    void fill(const QStringList &states)
    {
        core->fillForm(static_cast<int>(states.size()));
        for (int position = 1; position <= states.size(); ++position) {
            const RowState state = *stateOfWord(states.at(position - 1));
            list().setState(position, stateWord(state, core->w.form.language()));
        }
        core->settle();
    }

    RecipientList &list() { return core->w.recipients; }
    RecipientView &view() { return get<RecipientView>("lstDestinatari"); }
    QFrame &bar() { return get<QFrame>("runBar"); }
    QPushButton &button(const char *name) { return get<QPushButton>(name); }
    void click(const char *name)
    {
        QTest::mouseClick(&button(name), Qt::LeftButton);
        core->settle();
    }
    [[nodiscard]] QString text() { return get<QLabel>("lblBar").text(); }
    /// The buttons that can be seen, from left to right.
    [[nodiscard]] QString buttons()
    {
        QStringList names;
        for (const QPushButton *button : bar().findChildren<QPushButton *>()) {
            if (button->isVisible())
                names.append(button->objectName());
        }
        return names.join(u' ');
    }
    [[nodiscard]] QString checks()
    {
        QString all;
        for (const Recipient &row : list().rows())
            all += row.checked ? u'x' : u'-';
        return all;
    }
};

} // namespace

void TestRunBarWindow::aFreshWindowHasNoBarAndNoRoomForOne()
{
    BarRig rig(QStringList(3, u"Waiting"_s));
    QVERIFY(!rig.bar().isVisible());
    const int height = rig.view().height();
    const int below = rig.button("cmdAdd").y();
    rig.fill(SomeLeft);
    QTRY_VERIFY(rig.view().height() < height);
    rig.fill(QStringList(3, u"Waiting"_s));
    QTRY_COMPARE(rig.view().height(), height);
    QCOMPARE(rig.button("cmdAdd").y(), below);
}

void TestRunBarWindow::itStandsUnderTheListWithItsButtons_data()
{
    addLanguages();
}

void TestRunBarWindow::itStandsUnderTheListWithItsButtons()
{
    QFETCH(Language, language);
    BarRig rig(SomeLeft, language);
    const auto isInPlace = [&rig] {
        const QRect list(rig.view().mapTo(rig.window.get(), QPoint()), rig.view().size());
        const QRect bar(rig.bar().mapTo(rig.window.get(), QPoint()), rig.bar().size());
        const QPoint below = rig.button("cmdAdd").mapTo(rig.window.get(), QPoint());
        return bar.left() == list.left() && bar.width() == list.width() &&
               bar.top() > list.bottom() && bar.bottom() < below.y();
    };
    QTRY_VERIFY(isInPlace());
    QCOMPARE(rig.buttons(), u"cmdUncheckSent cmdShowRest"_s);
    rig.fill(NobodyLeft);
    QTRY_VERIFY(isInPlace());
    QCOMPARE(rig.buttons(), u"cmdUncheckSent cmdCheckRefused cmdReport"_s);
    rig.fill({u"Sent"_s, u"Sending..."_s});
    QCOMPARE(rig.buttons(), u"cmdUncheckSent cmdReport"_s);
    rig.fill({u"Sent"_s, u"Sent"_s});
    QVERIFY(!rig.bar().isVisible());
}

void TestRunBarWindow::itSaysWhatTheRunReached_data()
{
    addLanguages();
}

void TestRunBarWindow::itSaysWhatTheRunReached()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    BarRig rig(SomeLeft, language);
    QCOMPARE(rig.text(), isItalian ? u"1 di 5 inviato, 1 rifiutato, 1 in dubbio."_s
                                   : u"1 of 5 sent, 1 refused, 1 in doubt."_s);
    rig.fill(NobodyLeft);
    QCOMPARE(rig.text(), isItalian ? u"2 inviati, 1 rifiutato."_s : u"2 sent, 1 refused."_s);
}

void TestRunBarWindow::itGoesWhileARunIsShownAndComesBack()
{
    BarRig rig(NobodyLeft);
    QVERIFY(rig.bar().isVisible());
    rig.core->startSending();
    rig.core->settle();
    QVERIFY(!rig.bar().isVisible());
    rig.core->finishMessage();
    rig.core->finishMessage(false);
    rig.core->settle();
    QVERIFY(!rig.bar().isVisible());
    rig.core->w.engine.cmdPausa_Click();
    rig.core->settle();
    QVERIFY(!rig.bar().isVisible());
    rig.core->w.engine.StopSending();
    rig.core->settle();
    QVERIFY(rig.bar().isVisible());
    // The third is on its way: nobody knows yet what becomes of it.
    QCOMPARE(rig.text(), u"1 sent, 1 refused, 1 in doubt."_s);
    rig.core->smtp.raiseDone(true);
    rig.core->settle();
    QCOMPARE(rig.text(), u"2 sent, 1 refused."_s);
}

void TestRunBarWindow::uncheckingThoseSentLeavesTheRest()
{
    BarRig rig(SomeLeft);
    rig.core->w.form.setProjectModified(false);
    rig.click("cmdUncheckSent");
    QCOMPARE(rig.checks(), u"--xxx"_s);
    QVERIFY(rig.core->w.form.projectModified());
    QCOMPARE(rig.text(), u"1 of 5 sent, 1 refused, 1 in doubt."_s);
}

void TestRunBarWindow::theRestIsSelectedAndBroughtIntoSight()
{
    QStringList states(400, u"Sent"_s);
    states[299] = u"Waiting"_s;
    states[310] = u"Waiting"_s;
    states[350] = u"Waiting"_s;
    BarRig rig(states);
    rig.core->uncheck(311);
    rig.core->w.form.setProjectModified(false);
    rig.click("cmdShowRest");
    QCOMPARE(rig.view().selectedPositions(), std::vector<int>({300, 351}));
    QCOMPARE(rig.view().currentPosition(), 300);
    const QRect shown = rig.view().visualRect(rig.view().currentIndex());
    QVERIFY(rig.view().viewport()->rect().contains(shown.center()));
    QCOMPARE(QApplication::focusWidget(), &rig.view());
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestRunBarWindow::onlyTheRefusedAreChecked()
{
    BarRig rig(NobodyLeft);
    rig.core->w.form.setProjectModified(false);
    rig.click("cmdCheckRefused");
    QCOMPARE(rig.checks(), u"-x-"_s);
    QVERIFY(rig.core->w.form.projectModified());
    QCOMPARE(rig.text(), u"2 sent, 1 refused."_s);
}

void TestRunBarWindow::theReportIsAskedFor()
{
    BarRig rig(NobodyLeft);
    rig.core->prompts.expectFile(u"Select the file for the report:"_s, {});
    rig.click("cmdReport");
    QCOMPARE(rig.core->prompts.fileDialogs.size(), 1);
    rig.core->prompts.answerAll();
}

void TestRunBarWindow::itIsReachedByKeyboardAndLeavesTheKeysInTheList()
{
    BarRig rig({u"Sent"_s, u"Waiting"_s});
    rig.view().setFocus();
    QStringList visited;
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(rig.window->windowHandle(), Qt::Key_Tab);
        visited.append(rig.window->focusWidget()->objectName());
    }
    QCOMPARE(visited, QStringList({u"cmdUncheckSent"_s, u"cmdShowRest"_s, u"cmdAdd"_s}));
    rig.button("cmdUncheckSent").setFocus();
    QTest::keyClick(rig.window->windowHandle(), Qt::Key_Space);
    rig.core->settle();
    QCOMPARE(rig.checks(), u"-x"_s);
    QCOMPARE(rig.buttons(), u"cmdShowRest"_s);
    QCOMPARE(rig.window->focusWidget(), &rig.view());
    rig.button("cmdShowRest").setFocus();
    rig.list().setState(2, u"Sent"_s);
    rig.core->settle();
    QVERIFY(!rig.bar().isVisible());
    QCOMPARE(rig.window->focusWidget(), &rig.view());
}

void TestRunBarWindow::itNamesWhatUncheckingMeansForThoseInDoubt_data()
{
    addLanguages();
}

void TestRunBarWindow::itNamesWhatUncheckingMeansForThoseInDoubt()
{
    QFETCH(Language, language);
    BarRig rig(SomeLeft, language);
    const QString italian = u"Deseleziona anche chi è in dubbio: potrebbe avere il messaggio."_s;
    const QString english = u"Those in doubt are unchecked too: they may have the message."_s;
    QCOMPARE(rig.button("cmdUncheckSent").toolTip(),
             language == Language::Italian ? italian : english);
}
