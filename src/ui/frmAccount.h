#pragma once

#include "account/AccountPage.h"
#include "base/Shell.h"
#include "prompts/Prompts.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAccount;
}

/// What the page of an account works with. All but the probe outlives it.
struct AccountWindowParts
{
    Accounts &accounts;
    PasswordStore &passwords;
    std::unique_ptr<ServerProbe> probe;
    Prompts &prompts;
    Shell &shell;
    QString traceFile;
};

/// The page of a server's account. It blocks nothing of the main window.
class frmAccount : public QDialog
{
    Q_OBJECT

public:
    frmAccount(const ServerAddress &server, AccountWindowParts parts, QWidget *parent);
    ~frmAccount() override;

    [[nodiscard]] const ServerAddress &server() const { return m_page.server(); }

private:
    void showEntries();
    void showState();
    void showRemembered();
    void showSelection();
    void showReport();
    void openTrace();
    [[nodiscard]] AccountEntries entered() const;

    std::unique_ptr<Ui::frmAccount> m_ui;
    std::unique_ptr<ServerProbe> m_probe;
    Prompts &m_prompts;
    Shell &m_shell;
    QString m_traceFile;
    AccountPage m_page;
    bool m_showsTest = false;
};
