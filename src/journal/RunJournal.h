#pragma once

#include "journal/JournalFile.h"
#include "journal/RunFolder.h"
#include "journal/RunRecord.h"
#include "log/CLog.h"
#include "project/ProjectFile.h"
#include "prompts/Prompts.h"
#include "sending/RunRecorder.h"

#include <QCoreApplication>
#include <QObject>

#include <memory>

/// What the journal of a program works with. All of it outlives the journal.
struct JournalParts
{
    const Form &form;
    const RecipientList &recipients;
    SendingEngine &engine;
    ProjectFile &projectFile;
    Prompts &prompts;
    CLog &AppLog;
    const Clock &clock;
    const CodePage &codePage;
    DiskSync &sync;
    QString programFolder;
};

/// Keeps the run of a workspace on the disk: one file a run, from its start until everybody is
/// accounted for and somebody has seen it, or the project was saved with what became of its rows.
/// Whatever ends the program, the file tells who was sent the message; see RunLines.h.
///
/// It also keeps two processes from running the same project: a lock file beside the project names
/// who runs it.
class RunJournal : public QObject, public RunRecorder
{
    Q_OBJECT

public:
    explicit RunJournal(const JournalParts &parts);

    // What the engine tells.
    [[nodiscard]] bool claim() override;
    void pausedRunOpened() override;
    [[nodiscard]] bool begin() override;
    [[nodiscard]] bool isCaughtUp() override;
    [[nodiscard]] bool handingOver(const MessageInFlight &message) override;
    void settled(const MessageInFlight &message, const std::vector<RowResult> &results) override;
    void over() override;

    /// Somebody has seen how the run ended.
    void rowsSeen();
    /// The program is about to end: what it holds is let go, and what is left stays on the disk.
    void close();

    /// The file of this run, or of the last one while it is kept; empty without one.
    [[nodiscard]] QString file() const { return m_file ? m_file->path() : QString(); }
    using Locked = tl::expected<std::shared_ptr<RunLock>, LockRefusal>;

    /// The lock of a file in the folder of runs; this run's own is shared.
    [[nodiscard]] Locked lockOf(const QString &file) const;
    /// The lock of a project; this run's own is shared. Nothing for a project without a name.
    [[nodiscard]] Locked lockOfProject(const QString &path) const;
    /// The project that is shown next is locked already.
    void reserve(std::shared_ptr<RunLock> projectLock) { m_reserved = std::move(projectLock); }
    /// Takes over the file of a run that was left behind and is shown now.
    void adopt(const QString &file, std::shared_ptr<RunLock> lock, bool isOver);
    /// The user knows of that file and wants another run: the next one to begin replaces it.
    void supersede(const QString &file) { m_superseded.append(file); }
    /// Deletes a file that was left behind.
    void forget(const QString &file);
    /// Says which process has the run, or the project.
    void sayHeld(const LockRefusal &holder);
    /// The one name of a project's file, however it is written.
    [[nodiscard]] static QString realPath(const QString &path);

    [[nodiscard]] const RunFolder &folder() const { return m_folder; }
    /// What a file in it tells; nothing when it cannot be read.
    [[nodiscard]] std::optional<RunRecord> read(const QString &file) const;

private:
    [[nodiscard]] bool isOutdated();
    [[nodiscard]] bool hasRunOfAnotherProgram() const;
    [[nodiscard]] QStringList otherRecordsOfProject() const;
    [[nodiscard]] tl::expected<void, FileError> openFile();
    void removeSuperseded();
    void noteWhoIsAccountedFor();
    void saved();
    void situationChanged();
    void letGo();
    void discard();
    void report(const FileError &error, const QString &consequence);

    const Form &m_form;
    const RecipientList &m_recipients;
    SendingEngine &m_engine;
    ProjectFile &m_projectFile;
    Prompts &m_prompts;
    CLog &m_AppLog;
    const Clock &m_clock;
    const CodePage &m_codePage;
    DiskSync &m_sync;
    RunFolder m_folder;

    std::shared_ptr<RunLock> m_projectLock;
    std::shared_ptr<JournalFile> m_file;
    std::shared_ptr<JournalFile> m_messageFile; ///< where the message in flight stands
    std::shared_ptr<RunLock> m_reserved;
    QStringList m_superseded;
    bool m_isOver = true;
    bool m_isAccountedFor = true; ///< nobody was waiting or in doubt when the run was over
    bool m_isStarting = false;    ///< the rows' states are reset, and the run has not begun
    bool m_somebodyWaits = false; ///< until the disk has caught up
    bool m_hasBegun = false;      ///< a message was handed over
    quint32 m_project = 0;        ///< the number of the project whose run this is
    quint32 m_staleProject = 0;   ///< one that another process ran when it was opened here
};
