#pragma once

#include "form/Form.h"
#include "log/CLog.h"
#include "message/Attachments.h"
#include "message/MessageBodies.h"
#include "message/MessageSize.h"
#include "project/ProjectFile.h"
#include "project/WindowSettings.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"
#include "sending/SendingEngine.h"

#include <QCoreApplication>

#include <functional>

/// What the project commands work with.
struct ProjectParts
{
    Form &form;
    RecipientList &recipients;
    Attachments &attachments;
    MessageBodies &bodies;
    MessageSize &size;
    SendingEngine &engine;
    ProjectFile &file;
    WindowSettings &settings;
    Prompts &prompts;
    CLog &AppLog;
};

/// New, Open, Save and Save as.
class ProjectCommands
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCommands)

public:
    explicit ProjectCommands(const ProjectParts &parts);

    void cmdNuovo_Click();
    void cmdApri_Click();
    void cmdSave_Click();
    void cmdSaveAs_Click();

    /// The save command for another command that asked for it, also where the button is disabled.
    void save(std::function<void(SaveOutcome)> then);
    /// Open with its file already chosen: asks about unsaved changes, then loads it.
    void openInstead(const QString &path);
    /// Loads a project as Open does once its file is chosen.
    LoadOutcome open(const QString &path);
    /// Shows a project that was read from elsewhere, in the same way.
    LoadOutcome show(const ProjectData &project, const QString &path);
    /// Opens a project for somebody who can be asked about it first.
    void openAsking(const QString &path, std::function<void()> openFile) const;
    void UpdateCaption();

    /// Asks what stands in the way of opening that file, then calls openFile, or does not. What is
    /// above the commands hands it in.
    std::function<void(const QString &path, std::function<void()> openFile)> beforeOpening;

private:
    void offerToSave(Topic topic, const QString &text, Control command, std::function<void()> then);
    void saveAs(std::function<void(SaveOutcome)> then);
    void newProject();
    void offerToOpen(std::function<void()> then);
    void chooseProject();
    LoadOutcome opened(LoadOutcome outcome);
    [[nodiscard]] Stands whileSameProject() const;

    Form &m_form;
    RecipientList &m_recipients;
    Attachments &m_attachments;
    MessageBodies &m_bodies;
    MessageSize &m_size;
    SendingEngine &m_engine;
    ProjectFile &m_file;
    WindowSettings &m_settings;
    Prompts &m_prompts;
    CLog &m_AppLog;
};
