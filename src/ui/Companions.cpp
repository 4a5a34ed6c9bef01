#include "ui/Companions.h"

#include "ui/RecipientModel.h"
#include "ui/frmAccount.h"
#include "ui/frmCheck.h"
#include "ui/frmDetails.h"
#include "ui/frmTest.h"

namespace {

// A closed window is there until the event loop deletes it.
template <typename Window>
bool isOpen(const QPointer<Window> &window)
{
    return window && window->isVisible();
}

void bringForward(QWidget &window)
{
    window.setAttribute(Qt::WA_DeleteOnClose);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

Companions::Companions(const WindowParts &parts, QWidget &window)
    : m_window(window),
      m_form(parts.workspace.form),
      m_prompts(parts.prompts),
      m_shell(parts.shell),
      m_accounts(parts.accounts),
      m_passwords(parts.passwords),
      m_newProbe(parts.newProbe),
      m_traceFile(parts.traceFile),
      m_preflight(parts.preflight),
      m_test(parts.workspace.form, parts.prompts, parts.testMessage),
      m_formats(parts.formats)
{
    connect(&m_form, &Form::situationChanged, this, &Companions::closeStale);
    connect(&m_test, &TestToSender::addressChanged, this, &Companions::showTest);
}

// A page for each account; it stays while the server's box says something else.
void Companions::cmdAccount_Click()
{
    const auto server = ServerAddress::parse(m_form.text(Control::txtServer));
    if (!server || server->host.isEmpty()) {
        const QString text =
            server ? tr("Fill in the SMTP server first.")
                   : tr("'%1' is not a port number from 1 to 65535.").arg(server.error());
        m_prompts.notice({Icon::Exclamation, tr("Account"), text});
        return;
    }
    for (frmAccount *const page : m_window.findChildren<frmAccount *>()) {
        if (page->isVisible() && page->server() == *server) {
            bringForward(*page);
            return;
        }
    }
    auto *const page = new frmAccount(
        *server, {m_accounts, m_passwords, m_newProbe(), m_prompts, m_shell, m_traceFile},
        &m_window);
    bringForward(*page);
}

void Companions::mnuCheck_Click()
{
    if (!isOpen(m_checkWindow)) {
        m_checkWindow = new frmCheck(m_preflight, &m_window);
        connect(m_checkWindow, &frmCheck::wanted, this, &Companions::wanted);
    }
    m_checkWindow->checkAgain();
    bringForward(*m_checkWindow);
}

void Companions::showDetails(const RecipientModel &recipients, int position)
{
    if (!isOpen(m_detailsWindow))
        m_detailsWindow = new frmDetails(recipients, m_formats, &m_window);
    m_detailsProject = m_form.situation().project;
    m_detailsWindow->showRow(recipients.list().at(position).id);
    bringForward(*m_detailsWindow);
}

// What was found is about the project that is open, before it is sent; details are about its rows.
void Companions::closeStale()
{
    if (m_checkWindow)
        m_checkWindow->close();
    if (m_detailsWindow && m_detailsProject != m_form.situation().project)
        m_detailsWindow->close();
}

void Companions::showTest()
{
    if (!m_test.address().isEmpty() && !isOpen(m_testWindow)) {
        m_testWindow = new frmTest(m_test, &m_window);
        bringForward(*m_testWindow);
    }
}
