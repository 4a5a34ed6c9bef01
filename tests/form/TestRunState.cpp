#include "TestRunState.h"

#include "form/RunState.h"
#include "support/ItalianTexts.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using ControlSet = QSet<int>;

constexpr std::initializer_list<RunState> AllStates{RunState::Idle, RunState::Waiting,
                                                    RunState::Sending, RunState::Paused};

ControlSet setOf(std::initializer_list<Control> controls)
{
    ControlSet set;
    for (const Control control : controls)
        set.insert(static_cast<int>(control));
    return set;
}

ControlSet everyControl()
{
    ControlSet set;
    const auto controls = QMetaEnum::fromType<Control>();
    for (int i = 0; i < controls.keyCount(); ++i)
        set.insert(controls.value(i));
    return set;
}

ControlSet enabledIn(RunState state)
{
    ControlSet set;
    for (const int control : everyControl()) {
        if (isEnabled(static_cast<Control>(control), state))
            set.insert(control);
    }
    return set;
}

/// The object names, in order, so that a failure can be read.
QString namesOf(const ControlSet &set)
{
    QStringList names;
    for (const int control : set)
        names += QString::fromLatin1(QMetaEnum::fromType<Control>().valueToKey(control));
    names.sort();
    return names.join(u' ');
}

/// What a start locks: the disabled controls, and the two lists that it makes read-only.
ControlSet lockedByStart()
{
    return setOf({Control::txtServer,       Control::txtMittente,    Control::txtEmailMittente,
                  Control::chkRicevuta,     Control::chkMultiSend,   Control::mnuFile,
                  Control::mnuRubrica,      Control::mnuHelp,        Control::txtEmail,
                  Control::cmdEmail,        Control::cmdHTML,        Control::cmdCancellaTXT,
                  Control::cmdCancellaHTML, Control::cmdPreviewTXT,  Control::cmdPreviewHTML,
                  Control::txtOggetto,      Control::txtDestinatari, Control::cmdDestinatari,
                  Control::cmdFromRubrica,  Control::txtNMsg,        Control::txtPausa,
                  Control::cmdAggiungi,     Control::cmdRimuovi,     Control::cmdNuovo,
                  Control::cmdApri,         Control::cmdSave,        Control::cmdSaveAs,
                  Control::cmdAvvio,        Control::txtControl,     Control::txtHTML,
                  Control::cmdAdd,          Control::cmdRemove,      Control::cmdCheckAll,
                  Control::cmdUncheckAll,   Control::lstDestinatari, Control::lstAllegati,
                  Control::cmdAccount,      Control::mnuCheck,       Control::mnuTest,
                  Control::cmdUncheckSent,  Control::cmdShowRest,    Control::cmdCheckRefused,
                  Control::cmdReport});
}

/// What a start enables.
ControlSet enabledByStart()
{
    return setOf({Control::cmdStop, Control::cmdPausa});
}

/// What a pause enables, of what a start has locked.
ControlSet enabledByPause()
{
    return setOf({Control::cmdNuovo, Control::cmdApri, Control::cmdSave, Control::cmdSaveAs,
                  Control::cmdAccount});
}

} // namespace

void TestRunState::controlsThatCanBeUsed_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, RunState state, const ControlSet &expected) {
        QTest::newRow(name) << static_cast<int>(state) << namesOf(expected);
    };
    const ControlSet idle = everyControl() - enabledByStart();
    const ControlSet running = everyControl() - lockedByStart();
    row("Idle", RunState::Idle, idle);
    row("Waiting", RunState::Waiting, running);
    row("Sending", RunState::Sending, running);
    row("Paused", RunState::Paused, running + enabledByPause());
}

void TestRunState::controlsThatCanBeUsed()
{
    QFETCH(const int, state);
    QFETCH(const QString, expected);
    QCOMPARE(namesOf(enabledIn(static_cast<RunState>(state))), expected);
}

void TestRunState::startAndEndUndoEachOther()
{
    const ControlSet idle = enabledIn(RunState::Idle);
    const ControlSet running = enabledIn(RunState::Waiting);
    QCOMPARE(namesOf(idle - running), namesOf(lockedByStart()));
    QCOMPARE(namesOf(running - idle), u"cmdPausa cmdStop"_s);
}

void TestRunState::pauseGivesBackTheProjectCommandsAndTheAccountAlone()
{
    const ControlSet running = enabledIn(RunState::Sending);
    const ControlSet paused = enabledIn(RunState::Paused);
    QCOMPARE(namesOf(paused - running), u"cmdAccount cmdApri cmdNuovo cmdSave cmdSaveAs"_s);
    QCOMPARE(namesOf(running - paused), QString());
}

void TestRunState::timersOfEachState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("countdown");
    QTest::addColumn<bool>("time");
    QTest::newRow("Idle") << static_cast<int>(RunState::Idle) << false << false;
    QTest::newRow("Waiting") << static_cast<int>(RunState::Waiting) << true << true;
    QTest::newRow("Sending") << static_cast<int>(RunState::Sending) << false << true;
    QTest::newRow("Paused") << static_cast<int>(RunState::Paused) << false << false;
}

void TestRunState::timersOfEachState()
{
    QFETCH(const int, state);
    QFETCH(const bool, countdown);
    QFETCH(const bool, time);
    QCOMPARE(countsDown(static_cast<RunState>(state)), countdown);
    QCOMPARE(showsTime(static_cast<RunState>(state)), time);
}

void TestRunState::pauseWords()
{
    for (const RunState state : AllStates) {
        const bool paused = state == RunState::Paused;
        QCOMPARE(pauseWord(state, Language::English), paused ? u"Resume"_s : u"Pause"_s);
        QCOMPARE(pauseWord(state, Language::Italian), paused ? u"Riprendi"_s : u"Pausa"_s);
    }
}

void TestRunState::pauseWordDoesNotFollowTheCatalogue()
{
    const ItalianTexts italian;
    QCOMPARE(pauseWord(RunState::Sending, Language::English), u"Pause"_s);
}

void TestRunState::namesForTraces()
{
    QStringList names;
    for (const RunState state : AllStates)
        names += QString::fromLatin1(nameOf(state));
    QCOMPARE(names, (QStringList{u"Idle"_s, u"Waiting"_s, u"Sending"_s, u"Paused"_s}));
}
