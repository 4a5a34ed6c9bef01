// From the Start button to the armed timer, and the connection of each packet.

#include "sending/SendingEngine.h"

#include "sending/StartRefusals.h"
#include "smtp/ServerAddress.h"
#include "smtp/SmtpErrorNumber.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Start)
};

} // namespace

void SendingEngine::cmdAvvio_Click()
{
    if (!m_form.isEnabled(Control::cmdAvvio))
        return;
    const auto refusals = refusalsOfStart(m_form, m_recipients.count());
    if (!refusals.isEmpty()) {
        m_prompts.notice(refusals.front().box);
        return;
    }
    checkPictures();
}

void SendingEngine::checkPictures()
{
    const QString htmlPath = m_form.tag(Control::txtHTML);
    if (htmlPath.isEmpty() || m_bodies.CheckLinkedImages(htmlPath)) {
        offerToSave();
        return;
    }
    Question question;
    question.topic = Topic::LinkedImages;
    question.buttons = Buttons::YesNo;
    // The title of this box stays English in the Italian window too.
    question.title = QStringLiteral("Start");
    question.text = Texts::tr("Some image files linked to the HTML document aren't in the same "
                              "folder of the document or they are linked with an absolute path. "
                              "These images won't be sent correctly. Do you want to continue?");
    m_prompts.ask(
        question, [this, asked = m_form.situation()] { return m_form.situation() == asked; },
        [this](Answer answer) {
            if (answer == Answer::Yes)
                offerToSave();
        });
}

void SendingEngine::offerToSave()
{
    if (!m_form.projectModified()) {
        beginRun();
        return;
    }
    const auto stands = [this, asked = m_form.situation()] { return m_form.situation() == asked; };
    Question question;
    question.topic = Topic::SaveBeforeStart;
    question.buttons = Buttons::YesNoCancel;
    question.title = Texts::tr("Save");
    question.text = Texts::tr("Save changes before start sending?");
    m_prompts.ask(question, stands, [this, stands](Answer answer) {
        if (answer == Answer::No) {
            beginRun();
        } else if (answer == Answer::Yes) {
            m_save([this, stands](SaveOutcome outcome) {
                if (outcome != SaveOutcome::Failed && stands())
                    beginRun();
            });
        }
    });
}

void SendingEngine::beginRun()
{
    if (!m_recorder->claim())
        return;
    startNewRun();
    setRunState(RunState::Waiting, "Start was accepted");
    // What is known of earlier messages stays with the rows.
    for (int position = 1; position <= m_recipients.count(); ++position)
        m_recipients.setState(position, stateText(RowState::Waiting));
    m_controlRow = 0;
    if (const QString control = m_form.text(Control::txtControl); !control.isEmpty()) {
        Recipient row;
        row.number = QString::number(m_recipients.count() + 1);
        row.name = Texts::tr("Control Address");
        row.address = control;
        row.state = stateText(RowState::Waiting);
        m_controlRow = m_recipients.append(row);
    }
    if (const auto missing = missingMessageFile(m_form)) {
        m_AppLog.WriteMessage(QStringLiteral("Unable to find message files"));
        m_bodies.reportUnreadable(*missing);
        StopSending();
        return;
    }
    // Without its message a run would mail everybody an empty one.
    if (!loadBodies()) {
        StopSending();
        return;
    }
    m_session.secondsToNextPacket = 1;
    setNextRecipientIndex(1);
    m_form.setTag(Control::lblTrascorso, QStringLiteral("0"));
    m_form.setTag(Control::lblRimanente, QStringLiteral("-"));
    m_session.recipientsLeft = m_recipients.checkedFrom(1);
    if (!m_recorder->begin()) {
        StopSending();
        return;
    }
    m_AppLog.WriteMessage(QStringLiteral("User started sending messages"));
}

bool SendingEngine::loadBodies()
{
    m_bodies.empty();
    m_bodiesLoaded = m_bodies.LoadTextBody() && m_bodies.LoadHtmlBody();
    return m_bodiesLoaded;
}

void SendingEngine::ConnectForPacket()
{
    m_SMTP.Reset();
    const QString text = m_form.text(Control::txtServer);
    const auto server = ServerAddress::parse(text);
    m_SMTP.Server = server ? server->host : text.section(u':', 0, 0);
    m_SMTP.Port = server ? server->port : 0;
    m_sessionIsOfThisRun = true;
    m_readyWaits = false; // of the session before
    if (server)
        m_SMTP.Connect();
    m_AppLog.WriteMessage(QStringLiteral("Sending procedure started"));
    if (!server) {
        // English in both windows, as every error of a session: the log gets the same text.
        SMTP_SmtpError(
            static_cast<qint32>(SmtpErrorNumber::BadPort),
            QStringLiteral("'%1' is not a port number from 1 to 65535").arg(server.error()));
    }
}
