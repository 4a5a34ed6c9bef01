#pragma once

#include "project/EditorCommands.h"
#include "project/WindowLifecycle.h"
#include "ui/AddressBookWindows.h"
#include "ui/Companions.h"
#include "ui/FormBinding.h"
#include "ui/WindowParts.h"
#include "ui/WindowPlace.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QLineEdit;
class RecipientModel;
class RunProgress;
class frmPreview;

namespace Ui {
class frmMain;
}

/// The main window with English texts: a view of the workspace. Each of its controls has its name
/// in the form, and each command is a procedure of the core.
class frmMain : public QMainWindow
{
    Q_OBJECT

public:
    explicit frmMain(const WindowParts &parts);
    ~frmMain() override;

    /// Loads settings and, unless the path is empty, that project.
    void Form_Load(const QString &projectPath);
    /// The desktop's session ends, or the program was asked to end.
    void endSession();

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void showPictures();
    void bindCommands();
    void bindLists();
    void bindShortcuts();
    void bindDrops();
    void command(Control control, std::function<void()> procedure);
    void applyRunState();

    void mnuEditor_Click();
    void mnuAbout_Click();
    void openHelpPage(const QString &page);
    void openPreview();
    void mnuTest_Click();
    void goTo(const Finding &finding);
    void addPreviewTo(QLineEdit &box, bool html);

    std::unique_ptr<Ui::frmMain> m_ui;
    Workspace &m_workspace;
    Form &m_form;
    Prompts &m_prompts;
    Shell &m_shell;
    QString m_programFolder;
    QString m_helpFolder;
    Companions m_companions;
    AddressBookWindows m_addressBook;
    EditorCommands m_editors;
    WindowLifecycle m_lifecycle;
    Recovery &m_recovery;
    WindowPlace m_place;
    RecipientModel *m_recipients;
    RunProgress *m_progress;
    FormBinding m_binding;
    RunBar &m_runBar;
    ReportCommands &m_reports;
    const CodePage &m_codePage;
    frmPreview *m_preview = nullptr; ///< made when it is first wanted
    bool m_hasPlace = false;
};

/// The same window with Italian texts.
class frmMainIta : public frmMain
{
    Q_OBJECT

public:
    explicit frmMainIta(const WindowParts &parts);
};
