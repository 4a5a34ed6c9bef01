#include "TestForm.h"

#include "form/Form.h"
#include "support/ItalianTexts.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList namesOfControls(bool (*chosen)(Control))
{
    QStringList names;
    const auto controls = QMetaEnum::fromType<Control>();
    for (int i = 0; i < controls.keyCount(); ++i) {
        if (chosen(static_cast<Control>(controls.value(i))))
            names += QString::fromLatin1(controls.key(i));
    }
    names.sort();
    return names;
}

} // namespace

void TestForm::beginsAsItWasDesigned()
{
    const Form form(Language::English);
    QCOMPARE(form.text(Control::lblTrascorso), u"--:--"_s);
    QCOMPARE(form.text(Control::lblRimanente), u"--:--"_s);
    QCOMPARE(form.tag(Control::lblTrascorso), u"0"_s);
    QCOMPARE(form.tag(Control::lblRimanente), u"-"_s);
    QCOMPARE(form.text(Control::lblTimer), u"Not started"_s);
    QCOMPARE(form.text(Control::lblSize), u"0 KB"_s);
    QCOMPARE(form.tag(Control::cmdPausa), u"Pause"_s);
    QCOMPARE(form.text(Control::txtServer), QString());
    QVERIFY(!form.isChecked(Control::chkRicevuta));
    QVERIFY(!form.projectModified());
    QCOMPARE(form.projectPath(), QString());
    QCOMPARE(form.runState(), RunState::Idle);
}

void TestForm::beginsInItalianInItalian()
{
    const ItalianTexts italian;
    const Form form(Language::Italian);
    QCOMPARE(form.text(Control::lblTimer), u"Non Avviato"_s);
    QCOMPARE(form.tag(Control::cmdPausa), u"Pausa"_s);
}

void TestForm::textTagAndCheckAreKeptApart()
{
    Form form(Language::English);
    form.setText(Control::txtEmail, u"C:\\...\\a.txt"_s);
    form.setTag(Control::txtEmail, u"C:\\letters\\a.txt"_s);
    form.setChecked(Control::chkMultiSend, true);
    QCOMPARE(form.text(Control::txtEmail), u"C:\\...\\a.txt"_s);
    QCOMPARE(form.tag(Control::txtEmail), u"C:\\letters\\a.txt"_s);
    QVERIFY(form.isChecked(Control::chkMultiSend));
    QCOMPARE(form.text(Control::txtHTML), QString());
    QCOMPARE(form.tag(Control::txtHTML), QString());
    QVERIFY(!form.isChecked(Control::chkRicevuta));
}

void TestForm::editsOfTheProjectSetTheFlag_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("texts") << QStringList{
        u"txtControl"_s, u"txtDestinatari"_s, u"txtEmail"_s, u"txtEmailMittente"_s,
        u"txtHTML"_s,    u"txtMittente"_s,    u"txtNMsg"_s,  u"txtOggetto"_s,
        u"txtPausa"_s,   u"txtServer"_s};
}

void TestForm::editsOfTheProjectSetTheFlag()
{
    QFETCH(const QStringList, expected);
    const QStringList edits = namesOfControls([](Control control) {
        Form form(Language::English);
        form.setText(control, u"changed"_s);
        return form.projectModified();
    });
    QCOMPARE(edits, expected);
}

void TestForm::sameTextIsNoEdit()
{
    Form form(Language::English);
    form.setText(Control::txtServer, u"smtp.example"_s);
    form.setProjectModified(false);
    form.setText(Control::txtServer, u"smtp.example"_s);
    QVERIFY(!form.projectModified());
    form.setText(Control::txtServer, {});
    QVERIFY(form.projectModified());
}

void TestForm::tagIsNoEdit()
{
    const QStringList edits = namesOfControls([](Control control) {
        Form form(Language::English);
        form.setTag(control, u"changed"_s);
        return form.projectModified();
    });
    QCOMPARE(edits, QStringList());
}

void TestForm::receiptIsAnEditAndSendingToSeveralIsNot()
{
    Form form(Language::English);
    form.setChecked(Control::chkMultiSend, true);
    QVERIFY(!form.projectModified());
    form.setChecked(Control::chkRicevuta, false);
    QVERIFY(!form.projectModified());
    form.setChecked(Control::chkRicevuta, true);
    QVERIFY(form.projectModified());
}

void TestForm::flagIsClearedOnlyWhenTold()
{
    Form form(Language::English);
    form.setProjectModified(true);
    form.setProjectPath(u"/a.svk"_s);
    form.setCaption(u"a.svk"_s);
    form.setRunState(RunState::Waiting, "a test");
    form.setText(Control::txtServer, {});
    QVERIFY(form.projectModified());
    form.setProjectModified(false);
    QVERIFY(!form.projectModified());
}

void TestForm::eachChangeIsSaidOnce()
{
    Form form(Language::English);
    const QSignalSpy changes(&form, &Form::changed);
    form.setText(Control::txtServer, u"smtp.example"_s);
    form.setText(Control::txtServer, u"smtp.example"_s);
    form.setTag(Control::txtEmail, u"/a.txt"_s);
    form.setTag(Control::txtEmail, u"/a.txt"_s);
    form.setChecked(Control::chkMultiSend, true);
    form.setChecked(Control::chkMultiSend, true);
    QCOMPARE(changes.size(), 3);
    QCOMPARE(changes[0][0].value<Control>(), Control::txtServer);
    QCOMPARE(changes[1][0].value<Control>(), Control::txtEmail);
    QCOMPARE(changes[2][0].value<Control>(), Control::chkMultiSend);
}

void TestForm::pauseTagFollowsTheRunState()
{
    Form form(Language::English);
    form.setRunState(RunState::Paused, "a test");
    QCOMPARE(form.tag(Control::cmdPausa), u"Resume"_s);
    form.setRunState(RunState::Waiting, "a test");
    QCOMPARE(form.tag(Control::cmdPausa), u"Pause"_s);
    Form italian(Language::Italian);
    italian.setRunState(RunState::Paused, "a test");
    QCOMPARE(italian.tag(Control::cmdPausa), u"Riprendi"_s);
}

void TestForm::runStateIsSaidWhenItChanges()
{
    Form form(Language::English);
    const QSignalSpy changes(&form, &Form::runStateChanged);
    form.setRunState(RunState::Idle, "a test");
    QCOMPARE(changes.size(), 0);
    form.setRunState(RunState::Waiting, "a test");
    form.setRunState(RunState::Waiting, "a test");
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].value<RunState>(), RunState::Waiting);
}

void TestForm::controlsAreEnabledByTheRunState()
{
    Form form(Language::English);
    QVERIFY(form.isEnabled(Control::cmdAvvio));
    QVERIFY(!form.isEnabled(Control::cmdStop));
    form.setRunState(RunState::Sending, "a test");
    QVERIFY(!form.isEnabled(Control::cmdAvvio));
    QVERIFY(form.isEnabled(Control::cmdStop));
}

void TestForm::captionIsSaid()
{
    Form form(Language::English);
    const QSignalSpy changes(&form, &Form::captionChanged);
    form.setCaption(u"No Name - Sorvanta ver. 2.0"_s);
    QCOMPARE(form.caption(), u"No Name - Sorvanta ver. 2.0"_s);
    QCOMPARE(changes.size(), 1);
}

void TestForm::situationCountsProjectsAndRuns()
{
    Form form(Language::English);
    const Situation first = form.situation();
    form.countRunChanged();
    const Situation second = form.situation();
    form.countProjectReplaced();
    const Situation third = form.situation();
    QCOMPARE(second.project, first.project);
    QVERIFY(second.run != first.run);
    QVERIFY(third.project != second.project);
    QCOMPARE(third.run, second.run);
}
