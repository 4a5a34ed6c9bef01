#include "form/RunState.h"

#include <algorithm>
#include <array>

namespace {

// When a control can be used, for the controls of which it is not always true. Read it as the
// three lists that a start of a run, a pause and an end of a run work through.
struct Rule
{
    Control control = Control::txtServer;
    bool idle = true;
    bool running = true; // Waiting and Sending
    bool paused = true;
};

constexpr bool Yes = true;
constexpr bool No = false;

constexpr std::array Rules{
    // control                       idle running paused
    Rule{Control::txtServer, Yes, No, No},        Rule{Control::txtMittente, Yes, No, No},
    Rule{Control::txtEmailMittente, Yes, No, No}, Rule{Control::chkRicevuta, Yes, No, No},
    Rule{Control::chkMultiSend, Yes, No, No},     Rule{Control::mnuFile, Yes, No, No},
    Rule{Control::mnuRubrica, Yes, No, No},       Rule{Control::mnuHelp, Yes, No, No},
    Rule{Control::txtEmail, Yes, No, No},         Rule{Control::cmdEmail, Yes, No, No},
    Rule{Control::cmdHTML, Yes, No, No},          Rule{Control::cmdCancellaTXT, Yes, No, No},
    Rule{Control::cmdCancellaHTML, Yes, No, No},  Rule{Control::cmdPreviewTXT, Yes, No, No},
    Rule{Control::cmdPreviewHTML, Yes, No, No},   Rule{Control::txtOggetto, Yes, No, No},
    Rule{Control::txtDestinatari, Yes, No, No},   Rule{Control::cmdDestinatari, Yes, No, No},
    Rule{Control::cmdFromRubrica, Yes, No, No},   Rule{Control::txtNMsg, Yes, No, No},
    Rule{Control::txtPausa, Yes, No, No},         Rule{Control::cmdAggiungi, Yes, No, No},
    Rule{Control::cmdRimuovi, Yes, No, No},       Rule{Control::cmdNuovo, Yes, No, Yes},
    Rule{Control::cmdApri, Yes, No, Yes},         Rule{Control::cmdSave, Yes, No, Yes},
    Rule{Control::cmdSaveAs, Yes, No, Yes},       Rule{Control::cmdAvvio, Yes, No, No},
    Rule{Control::txtControl, Yes, No, No},       Rule{Control::txtHTML, Yes, No, No},
    Rule{Control::cmdAdd, Yes, No, No},           Rule{Control::cmdRemove, Yes, No, No},
    Rule{Control::cmdCheckAll, Yes, No, No},      Rule{Control::cmdUncheckAll, Yes, No, No},
    Rule{Control::lstDestinatari, Yes, No, No},   Rule{Control::lstAllegati, Yes, No, No},
    Rule{Control::cmdUncheckSent, Yes, No, No},   Rule{Control::cmdShowRest, Yes, No, No},
    Rule{Control::cmdCheckRefused, Yes, No, No},  Rule{Control::cmdReport, Yes, No, No},
    Rule{Control::mnuCheck, Yes, No, No},         Rule{Control::mnuTest, Yes, No, No},
    Rule{Control::cmdAccount, Yes, No, Yes},      Rule{Control::cmdStop, No, Yes, Yes},
    Rule{Control::cmdPausa, No, Yes, Yes},
};

} // namespace

bool isEnabled(Control control, RunState state)
{
    const auto *const rule = std::find_if(
        Rules.begin(), Rules.end(), [control](const Rule &r) { return r.control == control; });
    if (rule == Rules.end())
        return true;
    switch (state) {
    case RunState::Idle:
        return rule->idle;
    case RunState::Waiting:
    case RunState::Sending:
        return rule->running;
    case RunState::Paused:
        return rule->paused;
    }
    return true;
}

QString pauseWord(RunState state, Language language)
{
    const bool paused = state == RunState::Paused;
    if (language == Language::Italian)
        return paused ? QStringLiteral("Riprendi") : QStringLiteral("Pausa");
    return paused ? QStringLiteral("Resume") : QStringLiteral("Pause");
}

const char *nameOf(RunState state)
{
    switch (state) {
    case RunState::Idle:
        return "Idle";
    case RunState::Waiting:
        return "Waiting";
    case RunState::Sending:
        return "Sending";
    case RunState::Paused:
        return "Paused";
    }
    return "";
}
