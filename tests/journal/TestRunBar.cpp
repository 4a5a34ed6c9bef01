#include "TestRunBar.h"

#include "journal/RunBar.h"
#include "support/WorkspaceRig.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A workspace with a bar, and rows in states of the test's choice.
struct BarRig : WorkspaceRig
{
    /// Rows in these states, all checked.
    void fill(const QStringList &states)
    {
        fillForm(static_cast<int>(states.size()));
        std::vector<Recipient> rows = w.recipients.rows();
        for (std::size_t place = 0; place < rows.size(); ++place)
            rows[place].state = states.at(static_cast<qsizetype>(place));
        w.recipients.replaceAll(rows);
        settle();
    }
    [[nodiscard]] QString checks() const
    {
        QString all;
        for (const Recipient &row : w.recipients.rows())
            all += row.checked ? u'x' : u'-';
        return all;
    }
    [[nodiscard]] QList<int> images() const
    {
        QList<int> all;
        for (const Recipient &row : w.recipients.rows())
            all.append(row.imageIndex);
        return all;
    }
    /// The names of the buttons.
    [[nodiscard]] QString buttons() const
    {
        QStringList names;
        for (const Control control : bar.content().buttons)
            names.append(QLatin1String(
                QMetaEnum::fromType<Control>().valueToKey(static_cast<int>(control))));
        return names.join(u' ');
    }

    RunBar bar{w.form, w.recipients, w.recipientCommands};
};

} // namespace

void TestRunBar::whatItShowsFollowsTheCheckedRows_data()
{
    QTest::addColumn<QStringList>("states");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("buttons");
    const QString goOn = u"cmdUncheckSent cmdShowRest"_s;
    const auto row = [](const char *states, const char *text, const QString &buttons) {
        QTest::newRow(states) << QString::fromLatin1(states).split(u' ', Qt::SkipEmptyParts)
                              << QString::fromLatin1(text) << buttons;
    };
    row("", "", {});
    row("Waiting Waiting", "", {});
    row("Sent Sent", "", {});
    row("NotSent NotSent", "", {});
    row("Sent NotSent", "", {});
    row("Sent Waiting", "1 of 2 sent.", goOn);
    row("Error! Waiting", "0 of 2 sent, 1 refused.", u"cmdShowRest"_s);
    row("Sending... Waiting", "0 of 2 sent, 1 in doubt.", goOn);
    row("Sent Error! Error! Sending... Waiting Sent", "2 of 6 sent, 2 refused, 1 in doubt.", goOn);
    row("Sent Error!", "1 sent, 1 refused.", u"cmdUncheckSent cmdCheckRefused cmdReport"_s);
    row("Error!", "0 sent, 1 refused.", u"cmdCheckRefused cmdReport"_s);
    row("Sent Sending...", "1 sent, 1 in doubt.", u"cmdUncheckSent cmdReport"_s);
    row("Sent Sending... Error!", "1 sent, 1 refused, 1 in doubt.",
        u"cmdUncheckSent cmdCheckRefused cmdReport"_s);
    // A word of no language of the program's is yet to be reached.
    row("Sent Pending", "1 of 2 sent.", goOn);
    row("Inviato Attesa", "1 of 2 sent.", goOn);
}

void TestRunBar::whatItShowsFollowsTheCheckedRows()
{
    QFETCH(QStringList, states);
    QFETCH(QString, text);
    QFETCH(QString, buttons);
    states.replaceInStrings(u"NotSent"_s, u"Not sent"_s);
    BarRig rig;
    rig.fill(states);
    QCOMPARE(rig.bar.content().text, text);
    QCOMPARE(rig.buttons(), buttons);
    QCOMPARE(rig.label(Control::lblBar), text);
    QVERIFY(!rig.w.form.projectModified());
}

void TestRunBar::uncheckedRowsCountWhereARunHasComeToThem()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Error!"_s, u"Waiting"_s, u"Waiting"_s});
    QCOMPARE(rig.bar.content().text, u"1 of 4 sent, 1 refused."_s);
    rig.uncheck(2);
    rig.uncheck(4);
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 of 3 sent, 1 refused."_s);
    rig.uncheck(1);
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 of 3 sent, 1 refused."_s);
    rig.uncheck(3);
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 sent, 1 refused."_s);
}

void TestRunBar::whoIsInDoubtIsNeverLostFromIt()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Sending..."_s});
    rig.uncheck(2);
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 sent, 1 in doubt."_s);
}

void TestRunBar::thoseSentAreUncheckedWhereAnyIsChecked()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Sending..."_s, u"Waiting"_s});
    QCOMPARE(rig.buttons(), u"cmdUncheckSent cmdShowRest"_s);
    rig.bar.cmdUncheckSent_Click();
    rig.settle();
    QCOMPARE(rig.buttons(), u"cmdShowRest"_s);
}

void TestRunBar::itSaysTheNumbersAsTheLanguageWritesThem()
{
    Recipient row;
    row.state = u"Sent"_s;
    std::vector<Recipient> rows(10'000, row);
    row.state = u"Waiting"_s;
    rows.resize(12'345, row);
    QCOMPARE(RunBar::contentFor(rows, Language::English).text, u"10,000 of 12,345 sent."_s);
    const QString italian = RunBar::contentFor(rows, Language::Italian).text;
    QVERIFY2(italian.contains(u"10.000"_s) && italian.contains(u"12.345"_s), qPrintable(italian));
}

void TestRunBar::thereIsNoneWhileARunIsShown_data()
{
    QTest::addColumn<RunState>("state");
    for (const RunState state : {RunState::Waiting, RunState::Sending, RunState::Paused})
        QTest::newRow(nameOf(state)) << state;
}

void TestRunBar::thereIsNoneWhileARunIsShown()
{
    QFETCH(RunState, state);
    BarRig rig;
    rig.fill({u"Sent"_s, u"Waiting"_s});
    rig.w.form.setRunState(state, "a test");
    rig.settle();
    QCOMPARE(rig.bar.content(), RunBar::Content());
    QCOMPARE(rig.label(Control::lblBar), QString());
    rig.w.recipients.setState(2, u"Error!"_s);
    rig.settle();
    QCOMPARE(rig.bar.content(), RunBar::Content());
    rig.w.form.setRunState(RunState::Idle, "a test");
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 sent, 1 refused."_s);
}

void TestRunBar::changesOfManyRowsAreOneChangeOfTheBar()
{
    BarRig rig;
    rig.fill(QStringList(1000, u"Waiting"_s));
    const QSignalSpy changes(&rig.bar, &RunBar::changed);
    for (int position = 1; position < 1000; ++position)
        rig.w.recipients.setState(position, u"Sent"_s);
    QCOMPARE(rig.bar.content(), RunBar::Content());
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"999 of 1,000 sent."_s);
    QCOMPARE(changes.size(), 1);
    // What changes nothing of it is not said.
    rig.w.recipients.setState(1, u"Inviato"_s);
    rig.settle();
    QCOMPARE(changes.size(), 1);
}

void TestRunBar::rowsOfAnotherProjectReplaceIt()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Waiting"_s});
    rig.w.recipients.clear();
    rig.settle();
    QCOMPARE(rig.bar.content(), RunBar::Content());
}

void TestRunBar::uncheckingThoseSentUnchecksThoseInDoubtToo()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Sending..."_s, u"Error!"_s, u"Waiting"_s, u"Not sent"_s});
    rig.bar.cmdUncheckSent_Click();
    QCOMPARE(rig.checks(), u"--xxx"_s);
    QCOMPARE(rig.images(), QList<int>({3, 3, 2, 2, 2}));
    QVERIFY(rig.w.form.projectModified());
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 of 5 sent, 1 refused, 1 in doubt."_s);
}

void TestRunBar::afterUncheckingThoseSentStartReachesTheRest()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Waiting"_s, u"Sending..."_s, u"Waiting"_s});
    rig.bar.cmdUncheckSent_Click();
    rig.startSending();
    while (rig.smtp.messageInFlight())
        rig.finishMessage();
    QCOMPARE(rig.addressesSent(), QStringList({u"a2@example.net"_s, u"a4@example.net"_s}));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"Sending ended."_s});
}

void TestRunBar::aStartThatReachedNobodyRemembersTheRunBefore()
{
    BarRig rig;
    rig.fillForm(4);
    rig.startSending();
    rig.finishMessage();
    rig.finishMessage(false);
    rig.smtp.raiseError(10, u"lost"_s); // the third is in doubt
    rig.start();
    rig.Timer.tick();
    rig.smtp.raiseError(4, u"connection refused"_s);
    rig.settle();
    QCOMPARE(rig.states(), QStringList(4, u"Waiting"_s));
    QCOMPARE(rig.bar.content().text, u"2 sent to in an earlier run."_s);
    QCOMPARE(rig.buttons(), u"cmdUncheckSent"_s);

    rig.bar.cmdUncheckSent_Click();
    rig.settle();
    QCOMPARE(rig.checks(), u"-x-x"_s);
    QCOMPARE(rig.bar.content(), RunBar::Content());
    static_cast<void>(rig.prompts.takeNotices());
}

void TestRunBar::aStartThatDidNotComeToThemRemembersTheRunBefore()
{
    BarRig rig;
    rig.fillForm(4);
    rig.startSending();
    rig.finishMessage(false);
    rig.finishMessage();
    rig.smtp.raiseError(10, u"lost"_s); // the third is in doubt
    rig.w.form.setText(Control::txtNMsg, u"1"_s);
    rig.startSending();
    rig.finishMessage(false);
    rig.Timer.tick();
    rig.smtp.raiseError(4, u"connection refused"_s);
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"0 of 4 sent, 1 refused, 2 sent to in an earlier run."_s);
    QCOMPARE(rig.buttons(), u"cmdUncheckSent cmdShowRest"_s);

    rig.bar.cmdUncheckSent_Click();
    QCOMPARE(rig.checks(), u"x--x"_s);
    static_cast<void>(rig.prompts.takeNotices());
}

void TestRunBar::checkingTheRefusedUnchecksAllOthers()
{
    BarRig rig;
    rig.fill({u"Sent"_s, u"Error!"_s, u"Sending..."_s, u"Errore!"_s, u"Not sent"_s});
    rig.uncheck(4);
    rig.uncheck(5);
    rig.bar.cmdCheckRefused_Click();
    QCOMPARE(rig.checks(), u"-x-x-"_s);
    QCOMPARE(rig.images(), QList<int>({3, 2, 3, 2, 3}));
    QVERIFY(rig.w.form.projectModified());
    rig.settle();
    QCOMPARE(rig.bar.content().text, u"1 sent, 2 refused, 1 in doubt."_s);
}

void TestRunBar::rowsThatAreAsTheyShouldBeKeepTheirPictures()
{
    BarRig rig;
    rig.fill({u"Error!"_s, u"Sent"_s});
    rig.w.recipients.setCheckedWithImage(1, true, RowImage::AddedByHand);
    rig.w.recipients.setCheckedWithImage(2, false, RowImage::AddedByHand + 1);
    rig.bar.cmdUncheckSent_Click();
    rig.bar.cmdCheckRefused_Click();
    QCOMPARE(rig.checks(), u"x-"_s);
    QCOMPARE(rig.images(), QList<int>({RowImage::AddedByHand, RowImage::AddedByHand + 1}));
}

void TestRunBar::theRestIsWhoIsCheckedAndWaits()
{
    BarRig rig;
    rig.fill({u"Waiting"_s, u"Sent"_s, u"Sending..."_s, u"Error!"_s, u"Not sent"_s, u"Pending"_s,
              u"Attesa"_s});
    rig.uncheck(1);
    QCOMPARE(rig.w.recipients.positionsWhere(RunBar::isLeft), std::vector<int>({6, 7}));
}
