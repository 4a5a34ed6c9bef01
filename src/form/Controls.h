#pragma once

#include <QMetaEnum>
#include <QObject>

/// The controls and menu entries of the main window, by object name.
namespace Controls {
Q_NAMESPACE

enum class Control {
    chkMultiSend,
    cmdSaveAs,
    cmdSave,
    cmdApri,
    cmdNuovo,
    cmdStop,
    cmdPausa,
    cmdAvvio,
    cmdAggiungi,
    cmdRimuovi,
    lstAllegati,
    lblSize,
    cmdCancellaHTML,
    cmdCancellaTXT,
    cmdPreviewHTML,
    cmdPreviewTXT,
    cmdFromRubrica,
    txtDestinatari,
    txtControl,
    cmdUncheckAll,
    cmdCheckAll,
    cmdRemove,
    cmdAdd,
    lblBar,
    cmdUncheckSent,
    cmdShowRest,
    cmdCheckRefused,
    cmdReport,
    cmdDestinatari,
    lstDestinatari,
    txtHTML,
    cmdHTML,
    txtEmailMittente,
    txtServer,
    cmdAccount,
    txtOggetto,
    txtPausa,
    txtNMsg,
    chkRicevuta,
    cmdEmail,
    txtEmail,
    txtMittente,
    lblRimanente,
    lblTrascorso,
    lblTimer,
    mnuFile,
    mnuNuovo,
    mnuApri,
    mnuSalva,
    mnuSalvaConNome,
    mnuEditor,
    mnuEsci,
    mnuRubrica,
    mnuHelp,
    mnuCominciare,
    mnuContenuti,
    mnuAbout,
    mnuCheck,
    mnuTest,
};
Q_ENUM_NS(Control)

[[nodiscard]] inline int count()
{
    return QMetaEnum::fromType<Control>().keyCount();
}

} // namespace Controls

using Controls::Control;
