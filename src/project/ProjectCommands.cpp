#include "project/ProjectCommands.h"

#include "base/modMain.h"

ProjectCommands::ProjectCommands(const ProjectParts &parts)
    : m_form(parts.form),
      m_recipients(parts.recipients),
      m_attachments(parts.attachments),
      m_bodies(parts.bodies),
      m_size(parts.size),
      m_engine(parts.engine),
      m_file(parts.file),
      m_settings(parts.settings),
      m_prompts(parts.prompts),
      m_AppLog(parts.AppLog)
{}

Stands ProjectCommands::whileSameProject() const
{
    return [&form = m_form, project = m_form.situation().project] {
        return form.situation().project == project;
    };
}

void ProjectCommands::offerToSave(Topic topic, const QString &text, Control command,
                                  std::function<void()> then)
{
    if (!m_form.projectModified()) {
        then();
        return;
    }
    Question question;
    question.topic = topic;
    question.buttons = Buttons::YesNoCancel;
    question.title = tr("Save");
    question.text = text;
    const auto stands = [same = whileSameProject(), &form = m_form, command] {
        return same() && form.isEnabled(command);
    };
    m_prompts.ask(question, stands, [this, stands, then = std::move(then)](Answer answer) {
        if (answer == Answer::No) {
            then();
        } else if (answer == Answer::Yes) {
            save([stands, then](SaveOutcome outcome) {
                if (outcome != SaveOutcome::Failed && stands())
                    then();
            });
        }
    });
}

void ProjectCommands::cmdNuovo_Click()
{
    m_engine.turns().take([this] {
        if (m_form.isEnabled(Control::cmdNuovo)) {
            offerToSave(Topic::SaveBeforeNew, tr("Save changes before create a new project?"),
                        Control::cmdNuovo, [this] { newProject(); });
        }
    });
}

void ProjectCommands::newProject()
{
    m_settings.SaveSettings();
    m_form.countProjectReplaced();
    for (const Control box : {Control::txtEmail, Control::txtHTML, Control::txtDestinatari}) {
        m_form.setText(box, {});
        m_form.setTag(box, {});
    }
    m_form.setText(Control::txtOggetto, {});
    m_recipients.clear();
    m_attachments.replaceAll({});
    if (m_form.isEnabled(Control::cmdStop))
        m_engine.StopSending();
    m_form.setProjectPath({});
    m_bodies.empty();
    m_size.UpdateMessageSize();
    UpdateCaption();
    m_AppLog.WriteMessage(QStringLiteral("Created a new project"));
}

void ProjectCommands::cmdApri_Click()
{
    offerToOpen([this] { chooseProject(); });
}

void ProjectCommands::openInstead(const QString &path)
{
    offerToOpen([this, path] { openAsking(path, [this, path] { open(path); }); });
}

void ProjectCommands::offerToOpen(std::function<void()> then)
{
    m_engine.turns().take([this, then = std::move(then)] {
        if (m_form.isEnabled(Control::cmdApri)) {
            offerToSave(Topic::SaveBeforeOpen, tr("Save changes before open another project?"),
                        Control::cmdApri, then);
        }
    });
}

void ProjectCommands::chooseProject()
{
    FileDialog dialog;
    dialog.title = tr("Select the file to open:");
    dialog.filter = tr("Sorvanta file (*.svk)|*.svk|All files (*.*)|*.*");
    dialog.defaultExtension = QStringLiteral("svk");
    const auto stands = [same = whileSameProject(), &form = m_form] {
        return same() && form.isEnabled(Control::cmdApri);
    };
    m_prompts.askFile(dialog, stands, [this](const QString &name) {
        if (!name.isEmpty())
            openAsking(name, [this, name] { open(name); });
    });
}

void ProjectCommands::openAsking(const QString &path, std::function<void()> openFile) const
{
    if (beforeOpening)
        beforeOpening(path, std::move(openFile));
    else
        openFile();
}

LoadOutcome ProjectCommands::open(const QString &path)
{
    return opened(m_file.LoadProject(path));
}

LoadOutcome ProjectCommands::show(const ProjectData &project, const QString &path)
{
    return opened(m_file.show(project, path));
}

LoadOutcome ProjectCommands::opened(LoadOutcome outcome)
{
    const bool isPaused = outcome == LoadOutcome::LoadedPaused;
    // The paused run that was shown has lost its project.
    if (outcome != LoadOutcome::Refused && !isPaused && m_form.isEnabled(Control::cmdStop))
        m_engine.StopSending();
    UpdateCaption();
    return outcome;
}

void ProjectCommands::cmdSave_Click()
{
    m_engine.turns().take([this] {
        if (m_form.isEnabled(Control::cmdSave))
            save([](SaveOutcome) {});
    });
}

void ProjectCommands::save(std::function<void(SaveOutcome)> then)
{
    if (m_form.projectPath().isEmpty()) {
        saveAs(std::move(then));
        return;
    }
    // What another program has written is perhaps how far it came with sending.
    if (m_file.isChangedOnDisk()) {
        m_prompts.notice({Icon::Critical, tr("Save"),
                          tr("Another program has changed this project's file since it was opened "
                             "here. Open it again, or save this one under another name."),
                          m_form.projectPath()});
        then(SaveOutcome::Failed);
        return;
    }
    m_file.SaveProject(m_form.projectPath(), [then = std::move(then)](bool saved) {
        then(saved ? SaveOutcome::Saved : SaveOutcome::Failed);
    });
}

void ProjectCommands::cmdSaveAs_Click()
{
    m_engine.turns().take([this] {
        if (m_form.isEnabled(Control::cmdSaveAs))
            saveAs([](SaveOutcome) {});
    });
}

void ProjectCommands::saveAs(std::function<void(SaveOutcome)> then)
{
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = tr("Select the file to save:");
    dialog.filter = tr("Sorvanta File (*.svk)|*.svk");
    dialog.defaultExtension = QStringLiteral("svk");
    dialog.asksBeforeOverwriting = true;
    m_prompts.askFile(dialog, whileSameProject(),
                      [this, then = std::move(then)](const QString &name) {
                          if (name.isEmpty()) {
                              then(SaveOutcome::Abandoned);
                              return;
                          }
                          m_file.SaveProject(name, [this, then](bool saved) {
                              if (saved)
                                  UpdateCaption();
                              then(saved ? SaveOutcome::Saved : SaveOutcome::Failed);
                          });
                      });
}

void ProjectCommands::UpdateCaption()
{
    const QString path = m_form.projectPath();
    const QString name = path.isEmpty() ? tr("No Name") : fileNameOf(path);
    m_form.setCaption(name + QLatin1String(" - Sorvanta ver. ") +
                      QLatin1String(SORVANTA_VERSION_MAJOR_MINOR));
}
