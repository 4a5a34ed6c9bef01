#include "ui/frmMain.h"

#include "base/HelpPages.h"
#include "ui/FileDrops.h"
#include "ui/Pictures.h"
#include "ui/RecipientModel.h"
#include "ui/RunProgress.h"
#include "ui/frmAbout.h"
#include "ui/frmEditor.h"
#include "ui/frmPreview.h"
#include "ui_frmMain.h"

#include <QCloseEvent>
#include <QShortcut>

#include <array>
#include <utility>

namespace {

// The size of the pictures of the three buttons of a run.
constexpr int RunPictureSize = 24;

std::unique_ptr<Ui::frmMain> madeFor(frmMain &window)
{
    auto ui = std::make_unique<Ui::frmMain>();
    ui->setupUi(&window);
    return ui;
}

} // namespace

frmMain::frmMain(const WindowParts &parts)
    : m_ui(madeFor(*this)),
      m_workspace(parts.workspace),
      m_form(parts.workspace.form),
      m_prompts(parts.prompts),
      m_shell(parts.shell),
      m_programFolder(parts.programFolder),
      m_helpFolder(parts.helpFolder),
      m_companions(parts, *this),
      m_addressBook(parts, *this),
      m_editors(m_form, m_workspace.messageFiles, m_workspace.windowSettings, parts.prompts,
                parts.shell),
      m_lifecycle(m_form, m_workspace.projectCommands, m_workspace.projectFile,
                  m_workspace.windowSettings, m_workspace.engine, parts.prompts, parts.endProcess),
      m_recovery(parts.recovery),
      m_place(parts.placeFile),
      m_recipients(new RecipientModel(m_workspace.recipients, this)),
      m_progress(new RunProgress(m_form, m_workspace.engine, *m_ui->progress)),
      m_binding(m_form, *this),
      m_runBar(parts.runBar),
      m_reports(parts.reports),
      m_codePage(parts.codePage)
{
    setWindowIcon(Pictures::icon("application"));
    m_ui->mnuFile->insertSeparator(m_ui->mnuEditor)->setObjectName(QStringLiteral("mnuSep1"));
    m_ui->mnuFile->insertSeparator(m_ui->mnuEsci)->setObjectName(QStringLiteral("mnuSep4"));
    m_ui->mnuHelp->insertSeparator(m_ui->mnuAbout)->setObjectName(QStringLiteral("mnuSep2"));

    showPictures();
    // What is dragged wider gives its room to the recipients.
    m_ui->splitter->setStretchFactor(0, 0);
    m_ui->splitter->setStretchFactor(1, 1);

    bindCommands();
    bindLists();
    bindShortcuts();
    bindDrops();
    m_binding.applyRunState();
    applyRunState();

    connect(&m_form, &Form::runStateChanged, this, &frmMain::applyRunState);
    connect(&m_companions, &Companions::wanted, this, &frmMain::goTo);
    connect(&m_form, &Form::captionChanged, this, [this] { setWindowTitle(m_form.caption()); });
    m_lifecycle.beforeUnload = [this, &journal = parts.journal] {
        m_place.saveGeometry(*this);
        m_place.saveParts(*m_ui->splitter, *m_ui->lstDestinatari->header());
        m_addressBook.endSession();
        journal.close();
    };
    m_lifecycle.onUserLeaves = [&journal = parts.journal] {
        journal.rowsSeen();
        journal.close();
    };
}

frmMain::~frmMain() = default;

void frmMain::Form_Load(const QString &projectPath)
{
    m_hasPlace = m_place.restoreGeometry(*this) &&
                 m_place.restoreParts(*m_ui->splitter, *m_ui->lstDestinatari->header());
    m_lifecycle.Form_Load(projectPath);
    if (projectPath.isEmpty())
        m_recovery.atStart();
}

void frmMain::endSession()
{
    m_lifecycle.Form_QueryUnload(UnloadMode::SessionEnds);
}

void frmMain::closeEvent(QCloseEvent *event)
{
    // The window stays: when it may close, the process ends with it.
    event->ignore();
    m_lifecycle.Form_QueryUnload(UnloadMode::User);
}

void frmMain::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous())
        return;
    if (m_hasPlace)
        m_ui->lstDestinatari->fillUp();
    else
        m_ui->lstDestinatari->useDesignWidths();
}

void frmMain::showPictures()
{
    struct Picture
    {
        QAbstractButton *button;
        const char *name;
    };
    const std::array pictures{
        Picture{m_ui->cmdAccount, "account"},
        Picture{m_ui->cmdNuovo, "new"},
        Picture{m_ui->cmdApri, "open"},
        Picture{m_ui->cmdSave, "save"},
        Picture{m_ui->cmdSaveAs, "save-as"},
        Picture{m_ui->cmdAvvio, "start"},
        Picture{m_ui->cmdPausa, "pause"},
        Picture{m_ui->cmdStop, "stop"},
        Picture{m_ui->cmdAdd, "add"},
        Picture{m_ui->cmdRemove, "remove"},
        Picture{m_ui->cmdCheckAll, "check"},
        Picture{m_ui->cmdUncheckAll, "uncheck"},
        Picture{m_ui->cmdAggiungi, "attachment"},
        Picture{m_ui->cmdRimuovi, "remove"},
        Picture{m_ui->cmdDestinatari, "import"},
        Picture{m_ui->cmdFromRubrica, "address-book"},
    };
    for (const Picture &picture : pictures)
        picture.button->setIcon(Pictures::icon(picture.name));
    for (QPushButton *const button : {m_ui->cmdAvvio, m_ui->cmdPausa, m_ui->cmdStop})
        button->setIconSize({RunPictureSize, RunPictureSize});
}

void frmMain::command(Control control, std::function<void()> procedure)
{
    QObject *const object = m_binding.objectOf(control);
    if (auto *const button = qobject_cast<QAbstractButton *>(object))
        connect(button, &QAbstractButton::clicked, this, std::move(procedure));
    else if (auto *const action = qobject_cast<QAction *>(object))
        connect(action, &QAction::triggered, this, std::move(procedure));
}

void frmMain::bindCommands()
{
    Workspace &w = m_workspace;
    const auto newProject = [&w] { w.projectCommands.cmdNuovo_Click(); };
    const auto openProject = [&w] { w.projectCommands.cmdApri_Click(); };
    const auto save = [&w] { w.projectCommands.cmdSave_Click(); };
    const auto saveAs = [&w] { w.projectCommands.cmdSaveAs_Click(); };
    command(Control::cmdNuovo, newProject);
    command(Control::mnuNuovo, newProject);
    command(Control::cmdApri, openProject);
    command(Control::mnuApri, openProject);
    command(Control::cmdSave, save);
    command(Control::mnuSalva, save);
    command(Control::cmdSaveAs, saveAs);
    command(Control::mnuSalvaConNome, saveAs);
    command(Control::mnuEditor, [this] { mnuEditor_Click(); });
    command(Control::mnuEsci, [this] { m_lifecycle.mnuEsci_Click(); });
    command(Control::mnuRubrica, [this] { m_addressBook.mnuRubrica_Click(); });
    // The same pages in both languages.
    command(Control::mnuCominciare,
            [this] { openHelpPage(QStringLiteral("/Help/Tutorial/come_cominciare.htm")); });
    command(Control::mnuContenuti, [this] { openHelpPage(QStringLiteral("/Help/ita_help.htm")); });
    command(Control::mnuAbout, [this] { mnuAbout_Click(); });

    command(Control::cmdAvvio, [&w] { w.engine.cmdAvvio_Click(); });
    command(Control::mnuCheck, [this] { m_companions.mnuCheck_Click(); });
    command(Control::mnuTest, [this] { mnuTest_Click(); });
    command(Control::cmdAccount, [this] { m_companions.cmdAccount_Click(); });
    command(Control::cmdPausa, [&w] { w.engine.cmdPausa_Click(); });
    command(Control::cmdStop, [&w] { w.engine.cmdStop_Click(); });

    command(Control::cmdEmail, [&w] { w.messageFiles.cmdEmail_Click(); });
    command(Control::cmdHTML, [&w] { w.messageFiles.cmdHTML_Click(); });
    command(Control::cmdCancellaTXT, [&w] { w.messageFiles.cmdCancellaTXT_Click(); });
    command(Control::cmdCancellaHTML, [&w] { w.messageFiles.cmdCancellaHTML_Click(); });
    command(Control::cmdPreviewTXT, [this] { m_editors.cmdPreviewTXT_Click(); });
    command(Control::cmdPreviewHTML, [this] { m_editors.cmdPreviewHTML_Click(); });
    command(Control::cmdAggiungi, [&w] { w.attachmentCommands.cmdAggiungi_Click(); });
    command(Control::cmdRimuovi, [this, &w] {
        w.attachmentCommands.cmdRimuovi_Click(m_ui->lstAllegati->selectedPlace());
    });

    command(Control::cmdDestinatari, [&w] { w.recipientsFile.cmdDestinatari_Click(); });
    command(Control::cmdFromRubrica, [this] { m_addressBook.cmdFromRubrica_Click(); });
    command(Control::cmdAdd, [&w] { w.recipientCommands.cmdAdd_Click(); });
    command(Control::cmdRemove, [this, &w] {
        w.recipientCommands.cmdRemove_Click(m_ui->lstDestinatari->selectedPositions());
    });
    command(Control::cmdCheckAll, [this, &w] {
        w.recipientCommands.cmdCheckAll_Click(m_ui->lstDestinatari->selectedPositions());
    });
    command(Control::cmdUncheckAll, [this, &w] {
        w.recipientCommands.cmdUncheckAll_Click(m_ui->lstDestinatari->selectedPositions());
    });
    command(Control::cmdUncheckSent, [this] { m_runBar.cmdUncheckSent_Click(); });
    command(Control::cmdShowRest, [this] {
        m_ui->lstDestinatari->selectWhere(&RunBar::isLeft);
        m_ui->lstDestinatari->setFocus();
    });
    command(Control::cmdCheckRefused, [this] { m_runBar.cmdCheckRefused_Click(); });
    command(Control::cmdReport, [this] { m_reports.cmdReport_Click(); });
}

void frmMain::bindLists()
{
    Workspace &w = m_workspace;
    RecipientView &view = *m_ui->lstDestinatari;
    view.setRecipients(m_recipients, m_form.language());
    m_ui->runBar->setBar(m_runBar, view);
    connect(m_recipients, &RecipientModel::itemChecked, this, [&w](int position, bool checked) {
        w.recipientCommands.lstDestinatari_ItemCheck(position, checked);
    });
    connect(m_recipients, &RecipientModel::published, m_progress, &RunProgress::show);
    connect(&view, &RecipientView::headingClicked, this,
            [&w](int place) { w.recipientCommands.lstDestinatari_ColumnClick(place); });
    // Keys and menu of the lists press the buttons, so that they can do no more than these.
    connect(&view, &RecipientView::addWanted, m_ui->cmdAdd, &QPushButton::click);
    connect(&view, &RecipientView::removeWanted, m_ui->cmdRemove, &QPushButton::click);
    connect(&view, &RecipientView::checkWanted, m_ui->cmdCheckAll, &QPushButton::click);
    connect(&view, &RecipientView::uncheckWanted, m_ui->cmdUncheckAll, &QPushButton::click);
    connect(&view, &RecipientView::detailsWanted, this,
            [this](int position) { m_companions.showDetails(*m_recipients, position); });
    connect(&view, &RecipientView::reportWanted, m_ui->cmdReport, &QPushButton::click);
    m_ui->lstAllegati->setAttachments(w.attachments);
    connect(m_ui->lstAllegati, &AttachmentView::addWanted, m_ui->cmdAggiungi, &QPushButton::click);
    connect(m_ui->lstAllegati, &AttachmentView::removeWanted, m_ui->cmdRimuovi,
            &QPushButton::click);
}

void frmMain::bindShortcuts()
{
    struct Key
    {
        QPushButton *button;
        QAction *entry;
        QKeySequence keys;
    };
    const std::array keys{
        Key{m_ui->cmdNuovo, m_ui->mnuNuovo, QKeySequence(Qt::CTRL | Qt::Key_N)},
        Key{m_ui->cmdApri, m_ui->mnuApri, QKeySequence(Qt::CTRL | Qt::Key_O)},
        Key{m_ui->cmdSave, m_ui->mnuSalva, QKeySequence(Qt::CTRL | Qt::Key_S)},
        Key{m_ui->cmdSaveAs, m_ui->mnuSalvaConNome, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
    };
    for (const Key &key : keys) {
        // The button is pressed, also where the menu is disabled; the menu only shows the keys.
        auto *const shortcut = new QShortcut(key.keys, this);
        connect(shortcut, &QShortcut::activated, key.button, &QPushButton::click);
        key.button->setToolTip(key.keys.toString(QKeySequence::NativeText));
        key.entry->setShortcut(key.keys);
        key.entry->setShortcutContext(Qt::WidgetShortcut);
    }
    auto *const preview = new QShortcut(QKeySequence(Qt::Key_F5), this);
    connect(preview, &QShortcut::activated, this, &frmMain::openPreview);
    addPreviewTo(*m_ui->txtEmail, false);
    addPreviewTo(*m_ui->txtHTML, true);
}

void frmMain::bindDrops()
{
    const auto isProject = [](const QString &path) {
        return path.endsWith(QLatin1String(".svk"), Qt::CaseInsensitive);
    };
    new FileDrops(
        *this,
        [this, isProject](const QStringList &paths) {
            return paths.size() == 1 && isProject(paths.front()) && m_ui->cmdApri->isEnabled();
        },
        [&w = m_workspace](const QStringList &paths) {
            w.projectCommands.openInstead(paths.front());
        });
    new FileDrops(
        *m_ui->lstDestinatari->viewport(),
        [this, isProject](const QStringList &paths) {
            return paths.size() == 1 && !isProject(paths.front()) &&
                   m_ui->cmdDestinatari->isEnabled();
        },
        [&w = m_workspace](const QStringList &paths) {
            w.recipientsFile.SetRecipientsFile(paths.front());
        });
    new FileDrops(
        *m_ui->lstAllegati->viewport(),
        [this](const QStringList &) { return m_ui->cmdAggiungi->isEnabled(); },
        [&w = m_workspace](const QStringList &paths) {
            for (const QString &path : paths)
                w.attachmentCommands.attach(path);
        });
}

void frmMain::applyRunState()
{
    m_ui->lstDestinatari->setReadOnly(!m_form.isEnabled(Control::lstDestinatari));
    const bool isPaused = m_form.runState() == RunState::Paused;
    m_ui->cmdPausa->setText(m_form.tag(Control::cmdPausa));
    m_ui->cmdPausa->setIcon(Pictures::icon(isPaused ? "resume" : "pause"));
}

void frmMain::openHelpPage(const QString &page)
{
    m_shell.open(helpAddress(m_helpFolder, page));
}

void frmMain::openPreview()
{
    if (!m_preview)
        m_preview = new frmPreview(m_codePage, this);
    QStringList names;
    names.reserve(m_workspace.recipients.count());
    for (const Recipient &row : m_workspace.recipients.rows())
        names.append(row.name);
    m_preview->Init({m_form.tag(Control::txtEmail), m_form.tag(Control::txtHTML),
                     !m_form.text(Control::txtEmail).isEmpty(),
                     !m_form.text(Control::txtHTML).isEmpty()},
                    names);
    m_preview->show();
    m_preview->raise();
    m_preview->activateWindow();
}

// Puts the preview of that message into the box's context menu.
void frmMain::addPreviewTo(QLineEdit &box, bool html)
{
    box.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&box, &QWidget::customContextMenuRequested, this, [this, &box, html](QPoint place) {
        QMenu *const menu = box.createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addSeparator();
        QAction *const preview = menu->addAction(tr("Preview"), this, [this, html] {
            openPreview();
            m_preview->SetMode(html);
        });
        preview->setShortcut(QKeySequence(Qt::Key_F5));
        preview->setShortcutContext(Qt::WidgetShortcut);
        preview->setEnabled(!box.text().isEmpty());
        menu->popup(box.mapToGlobal(place));
    });
}

void frmMain::mnuTest_Click()
{
    const int current = m_ui->lstDestinatari->currentPosition();
    m_companions.mnuTest_Click(current > 0 ? current : qMin(1, m_workspace.recipients.count()));
}

// A row that has been removed meanwhile is nowhere.
void frmMain::goTo(const Finding &finding)
{
    auto *target =
        finding.control ? qobject_cast<QWidget *>(m_binding.objectOf(*finding.control)) : nullptr;
    if (finding.row != 0) {
        const int position = m_workspace.recipients.positionOf(finding.row);
        target = position == 0 ? nullptr : m_ui->lstDestinatari;
        if (target != nullptr)
            m_ui->lstDestinatari->goTo(position);
    }
    if (target == nullptr)
        return;
    target->setFocus();
    activateWindow();
}

void frmMain::mnuEditor_Click()
{
    auto *const chooser =
        new frmEditor(m_workspace.windowSettings, m_prompts, m_programFolder, this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->open();
}

void frmMain::mnuAbout_Click()
{
    auto *const about = new frmAbout(m_shell, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

frmMainIta::frmMainIta(const WindowParts &parts) : frmMain(parts)
{
    setObjectName(QStringLiteral("frmMainIta"));
}
