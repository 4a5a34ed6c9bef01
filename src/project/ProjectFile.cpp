#include "project/ProjectFile.h"

#include "base/modMain.h"

#include <QFileInfo>

#include <algorithm>

ProjectFile::ProjectFile(Form &form, RecipientList &recipients, Attachments &attachments,
                         MessageSize &size, SendingEngine &engine, Prompts &prompts, CLog &AppLog,
                         const CodePage &codePage)
    : m_form(form),
      m_recipients(recipients),
      m_attachments(attachments),
      m_size(size),
      m_engine(engine),
      m_prompts(prompts),
      m_AppLog(AppLog),
      m_codePage(codePage)
{}

ProjectData ProjectFile::collect(bool paused) const
{
    ProjectData project;
    project.paused = paused;
    project.nextRecipientIndex = m_engine.nextRecipientIndex();
    project.elapsed = m_form.tag(Control::lblTrascorso);
    project.server = m_form.text(Control::txtServer);
    project.senderName = m_form.text(Control::txtMittente);
    project.senderAddress = m_form.text(Control::txtEmailMittente);
    project.controlAddress = m_form.text(Control::txtControl);
    project.returnReceipt = m_form.isChecked(Control::chkRicevuta);
    project.textPath = m_form.tag(Control::txtEmail);
    project.htmlPath = m_form.tag(Control::txtHTML);
    project.subject = m_form.text(Control::txtOggetto);
    project.recipientsPath = m_form.tag(Control::txtDestinatari);
    project.messagesPerPacket = m_form.text(Control::txtNMsg);
    project.delayMinutes = m_form.text(Control::txtPausa);
    project.multiSend = m_form.isChecked(Control::chkMultiSend);
    project.attachments = m_attachments.paths();
    project.recipients = m_recipients.rows();
    // The row for the control address belongs to the run. A paused run needs it when it goes on;
    // in any other file it would be one more recipient.
    if (!project.paused && m_engine.controlRow() != 0) {
        std::erase_if(project.recipients,
                      [this](const Recipient &row) { return row.id == m_engine.controlRow(); });
    }
    return project;
}

ProjectFile::Stamp ProjectFile::stampOf(const QString &path)
{
    const QFileInfo info(systemPath(path));
    return {path, info.lastModified(), info.exists() ? info.size() : -1};
}

bool ProjectFile::isChangedOnDisk() const
{
    const QString path = m_form.projectPath();
    if (path.isEmpty() || path != m_stamp.path)
        return false;
    const Stamp now = stampOf(path);
    return now.size >= 0 && now != m_stamp;
}

ProjectData ProjectFile::pausedProject() const
{
    ProjectData project = collect(true);
    if (m_engine.messageInFlight())
        apply(m_engine.settledInDoubt(), project);
    return project;
}

void ProjectFile::SaveProject(const QString &path, std::function<void(bool saved)> then)
{
    WaitingSave save{path, collect(m_form.runState() == RunState::Paused), std::move(then)};
    if (!save.project.paused || !m_engine.messageInFlight()) {
        write(save);
        return;
    }
    m_waiting = std::move(save);
    m_engine.turns().close();
    m_engine.whenSettled([this](const SettledMessage &settlement) {
        if (!m_waiting)
            return;
        WaitingSave settled = *std::exchange(m_waiting, std::nullopt);
        apply(settlement, settled.project);
        m_engine.turns().open();
        write(settled);
    });
}

void ProjectFile::finishWaitingSave()
{
    if (!m_waiting)
        return;
    WaitingSave save = *std::exchange(m_waiting, std::nullopt);
    apply(m_engine.settledInDoubt(), save.project);
    m_engine.turns().open();
    write(save);
}

void ProjectFile::apply(const SettledMessage &settlement, ProjectData &project)
{
    int lastPosition = 0;
    for (const SettledMessage::Row &settled : settlement.rows) {
        const auto row = std::find_if(project.recipients.begin(), project.recipients.end(),
                                      [&](const Recipient &r) { return r.id == settled.id; });
        if (row == project.recipients.end())
            continue;
        row->state = settled.state;
        lastPosition = static_cast<int>(row - project.recipients.begin()) + 1;
    }
    if (settlement.finished && lastPosition > 0)
        project.nextRecipientIndex = positionAfter(project.recipients, lastPosition);
}

void ProjectFile::write(const WaitingSave &save)
{
    const auto written =
        replaceWholeFile(save.path, m_codePage.encode(encodeProject(save.project)));
    if (written) {
        m_form.setProjectPath(save.path);
        m_stamp = stampOf(save.path);
        m_AppLog.WriteMessage(QLatin1String("Project file '") + save.path +
                              QLatin1String("' saved"));
        if (onSaved)
            onSaved();
    } else {
        m_prompts.notice({Icon::Critical, tr("Save"), written.error().toText()});
    }
    save.then(written.has_value());
}

LoadOutcome ProjectFile::LoadProject(const QString &path)
{
    const auto refuse = [this, &path](const QString &reason) {
        m_prompts.notice({Icon::Critical, tr("Open"), tr("Unable to load the specified file!"),
                          FileError{path, reason}.toText()});
    };
    const Stamp stamp = stampOf(path);
    const auto content = readTextFile(path);
    if (!content) {
        refuse(content.error().reason);
        return LoadOutcome::Refused;
    }
    const auto project = decodeProject(m_codePage.decode(*content));
    if (!project) {
        refuse(project.error() == ProjectFault::WrongTag
                   ? tr("it is no project file")
                   : tr("it ends before its header is complete"));
        return LoadOutcome::Refused;
    }
    if (project->cut) {
        show(*project, {});
        refuse(tr("it ends inside a recipient; the recipients before it were loaded"));
        return LoadOutcome::LoadedInPart;
    }
    const LoadOutcome outcome = show(*project, path);
    m_stamp = stamp;
    return outcome;
}

LoadOutcome ProjectFile::show(const ProjectData &project, const QString &path)
{
    m_form.countProjectReplaced();
    fillForm(project);
    m_form.setProjectPath(path);
    m_stamp = stampOf(path);
    m_form.setProjectModified(true);
    if (project.paused) {
        restorePausedRun();
    } else {
        m_form.setTag(Control::lblTrascorso, QStringLiteral("0"));
        m_form.setText(Control::lblTrascorso, QStringLiteral("--:--"));
    }
    if (!path.isEmpty())
        m_AppLog.WriteMessage(QLatin1String("Project file '") + path + QLatin1String("' loaded"));
    m_size.UpdateMessageSize();
    return project.paused ? LoadOutcome::LoadedPaused : LoadOutcome::Loaded;
}

void ProjectFile::fillForm(const ProjectData &project)
{
    constexpr qint16 ShownWidth = 60;
    const auto showFile = [this](Control box, const QString &path) {
        m_form.setTag(box, path);
        m_form.setText(box, Wrap(path, ShownWidth));
    };
    m_engine.setNextRecipientIndex(project.nextRecipientIndex);
    m_form.setTag(Control::lblTrascorso, project.elapsed);
    m_form.setText(Control::txtServer, project.server);
    m_form.setText(Control::txtMittente, project.senderName);
    m_form.setText(Control::txtEmailMittente, project.senderAddress);
    m_form.setText(Control::txtControl, project.controlAddress);
    m_form.setChecked(Control::chkRicevuta, project.returnReceipt);
    showFile(Control::txtEmail, project.textPath);
    showFile(Control::txtHTML, project.htmlPath);
    m_form.setText(Control::txtOggetto, project.subject);
    showFile(Control::txtDestinatari, project.recipientsPath);
    m_form.setText(Control::txtNMsg, project.messagesPerPacket);
    m_form.setText(Control::txtPausa, project.delayMinutes);
    m_form.setChecked(Control::chkMultiSend, project.multiSend);
    m_attachments.replaceAll(project.attachments);
    m_recipients.replaceAll(project.recipients);
    m_form.setTag(Control::lblRimanente, QStringLiteral("-"));
    m_form.setText(Control::lblRimanente, QStringLiteral("--:--"));
}

void ProjectFile::restorePausedRun()
{
    m_engine.Timer2_Timer();
    m_engine.loadBodies();
    m_engine.EnterPausedState();
}
