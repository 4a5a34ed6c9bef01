#pragma once

#include "preflight/TestToSender.h"
#include "ui/WindowParts.h"

#include <QObject>
#include <QPointer>

class RecipientModel;
class frmCheck;
class frmDetails;
class frmTest;

/// The windows that stay beside the main window and block nothing of it: the pages of accounts, the
/// check before sending, a test message on its way, the details of a recipient.
class Companions : public QObject
{
    Q_OBJECT

public:
    /// They are shown over that window.
    Companions(const WindowParts &parts, QWidget &window);

    /// The page of the account of the form's server.
    void cmdAccount_Click();
    void mnuCheck_Click();
    /// The message is that of the row at this position; 0: of no row.
    void mnuTest_Click(int position) { m_test.mnuTest_Click(position); }
    /// The details of the row at this position; one window for whichever row is wanted.
    void showDetails(const RecipientModel &recipients, int position);

Q_SIGNALS:
    /// The user wants to go where this is put right.
    void wanted(const Finding &finding);

private:
    void closeStale();
    void showTest();

    QWidget &m_window;
    const Form &m_form;
    Prompts &m_prompts;
    Shell &m_shell;
    Accounts &m_accounts;
    PasswordStore &m_passwords;
    std::function<std::unique_ptr<ServerProbe>()> m_newProbe;
    QString m_traceFile;
    Preflight &m_preflight;
    TestToSender m_test;
    QPointer<frmCheck> m_checkWindow;
    QPointer<frmTest> m_testWindow;
    const RegionalFormats &m_formats;
    QPointer<frmDetails> m_detailsWindow;
    quint32 m_detailsProject = 0; ///< the project whose recipient is shown
};
