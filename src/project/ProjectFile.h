#pragma once

#include "base/CodePage.h"
#include "base/Files.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "message/Attachments.h"
#include "message/MessageSize.h"
#include "project/ProjectData.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"
#include "sending/SendingEngine.h"

#include <QCoreApplication>
#include <QDateTime>

#include <functional>
#include <optional>

enum class LoadOutcome {
    Loaded,
    LoadedPaused, ///< the run goes on where it stood once it is resumed
    LoadedInPart, ///< the file was cut; the project has no name, so that it cannot be overwritten
    Refused,      ///< nothing changed
};

/// The project file of the window: written from the form and the lists, and loaded into them.
class ProjectFile
{
    Q_DECLARE_TR_FUNCTIONS(ProjectFile)

public:
    ProjectFile(Form &form, RecipientList &recipients, Attachments &attachments, MessageSize &size,
                SendingEngine &engine, Prompts &prompts, CLog &AppLog, const CodePage &codePage);

    /// Writes the project to that path and makes it the project's. While a message of a paused run
    /// is in flight, what is written is the project as it stands now with that message's result;
    /// until then other commands wait. On failure a box says why, the old file stays, and the
    /// project keeps the path it had.
    void SaveProject(const QString &path, std::function<void(bool saved)> then);
    /// Reads the whole file before anything changes.
    LoadOutcome LoadProject(const QString &path);
    /// Shows a project that was read from elsewhere as that of this path (empty: it has no name).
    LoadOutcome show(const ProjectData &project, const QString &path);
    /// Whether another program has written the project's file since it was loaded or saved here.
    [[nodiscard]] bool isChangedOnDisk() const;
    /// The project as it would be saved in a pause: the control row is in it, and the cursor lies
    /// past a message whose result is not known.
    [[nodiscard]] ProjectData pausedProject() const;

    /// Writes a save that waits for a message now, with that message in doubt: the cursor lies
    /// past it, so that it cannot be sent again.
    void finishWaitingSave();

    /// Called when the project has been saved.
    std::function<void()> onSaved;

private:
    struct WaitingSave
    {
        QString path;
        ProjectData project;
        std::function<void(bool)> then;
    };

    /// What a file looked like, to know it again without reading it.
    struct Stamp
    {
        QString path;
        QDateTime modified;
        qint64 size = 0;

        bool operator==(const Stamp &) const = default;
    };

    [[nodiscard]] static Stamp stampOf(const QString &path);
    [[nodiscard]] ProjectData collect(bool paused) const;
    void fillForm(const ProjectData &project);
    void restorePausedRun();
    void write(const WaitingSave &save);
    static void apply(const SettledMessage &settlement, ProjectData &project);

    Form &m_form;
    RecipientList &m_recipients;
    Attachments &m_attachments;
    MessageSize &m_size;
    SendingEngine &m_engine;
    Prompts &m_prompts;
    CLog &m_AppLog;
    const CodePage &m_codePage;
    std::optional<WaitingSave> m_waiting;
    Stamp m_stamp; ///< the project's file, as it was last loaded or saved
};
