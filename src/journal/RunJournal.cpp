#include "journal/RunJournal.h"

#include "journal/RunLines.h"
#include "journal/RunRecord.h"

#include <QFileInfo>

#include <algorithm>

namespace {

std::vector<int> positionsOf(const MessageInFlight &message)
{
    std::vector<int> positions;
    positions.reserve(message.rows.size());
    for (const MessageInFlight::Row &row : message.rows)
        positions.push_back(row.position);
    return positions;
}

} // namespace

RunJournal::RunJournal(const JournalParts &parts)
    : m_form(parts.form),
      m_recipients(parts.recipients),
      m_engine(parts.engine),
      m_projectFile(parts.projectFile),
      m_prompts(parts.prompts),
      m_AppLog(parts.AppLog),
      m_clock(parts.clock),
      m_codePage(parts.codePage),
      m_sync(parts.sync),
      m_folder(parts.programFolder)
{
    m_engine.setRecorder(*this);
    m_projectFile.onSaved = [this] { saved(); };
    connect(&m_form, &Form::situationChanged, this, &RunJournal::situationChanged);
}

QString RunJournal::realPath(const QString &path)
{
    const QFileInfo info(systemPath(path));
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

tl::expected<std::shared_ptr<RunLock>, LockRefusal> RunJournal::lockProject() const
{
    const QString path = m_form.projectPath();
    if (path.isEmpty()) // nobody else can open it
        return nullptr;
    const QString beside = realPath(path);
    const QString standIn = m_folder.standInFor(beside);
    for (const QString &file : {beside, standIn}) {
        if (m_projectLock && m_projectLock->file() == file)
            return m_projectLock;
    }
    auto lock = RunLock::take(beside);
    // Where nobody may write, at least this machine's own programs know of each other.
    if (!lock && !lock.error().isHeld)
        lock = RunLock::take(standIn);
    return lock;
}

bool RunJournal::claim()
{
    if (m_staleProject == m_form.situation().project && m_staleProject != 0) {
        m_prompts.notice({Icon::Exclamation, tr("Run"),
                          tr("This project was being run by another program when it was opened "
                             "here. Open it again to see how far that run came.")});
        return false;
    }
    auto lock = lockProject();
    if (!lock) {
        const LockRefusal &refusal = lock.error();
        QString text = refusal.isHeld
                           ? tr("Another program is running this project, or has a run of it that "
                                "is not saved "
                                "yet: process %1 on %2. It cannot be run twice at the same time.")
                                 .arg(refusal.process)
                                 .arg(refusal.host)
                           : tr("The run cannot be recorded, and is not started.");
        m_prompts.notice({Icon::Exclamation, tr("Run"), text,
                          refusal.isHeld
                              ? tr("If that program is gone, delete the file %1.").arg(refusal.file)
                              : tr("%1: it cannot be written").arg(refusal.file)});
        return false;
    }
    m_projectLock = std::move(*lock);
    m_project = m_form.situation().project;
    return true;
}

// Nothing is said yet: whoever only looks at the project is not disturbed.
void RunJournal::pausedRunOpened()
{
    m_isOver = false;
    m_project = m_form.situation().project;
    if (auto lock = lockProject())
        m_projectLock = std::move(*lock);
    else if (lock.error().isHeld)
        m_staleProject = m_project;
}

bool RunJournal::begin()
{
    const auto opened = openFile();
    if (!opened) {
        report(opened.error(), tr("The run cannot be recorded, and does not go on."));
        return false;
    }
    m_isOver = false;
    m_project = m_form.situation().project;
    removeSuperseded();
    return true;
}

// A run that goes on after a pause begins its file anew: all that is known stands in it, and a disk
// that had failed is tried again.
tl::expected<void, FileError> RunJournal::openFile()
{
    auto file = m_file;
    const bool goesOn = file && !m_isOver;
    if (!goesOn) {
        const QString path = m_folder.newFile(m_clock.milliseconds());
        auto lock = RunLock::take(path);
        if (!lock)
            return tl::unexpected(FileError{lock.error().file, tr("it cannot be written")});
        file = std::make_shared<JournalFile>(path, std::move(*lock), m_clock, m_sync);
    }
    RunRecord record;
    record.projectPath =
        m_form.projectPath().isEmpty() ? QString() : realPath(m_form.projectPath());
    record.started = m_clock.milliseconds();
    record.project = m_projectFile.pausedProject();
    if (auto begun = file->begin(encodeRun(record, m_codePage)); !begun)
        return begun;
    if (!goesOn) {
        if (m_file)
            m_file->remove();
        m_file = std::move(file);
        // Also when only earlier runs sent anything: what is known of that is in the file.
        m_hasBegun = record.hasBegun();
    }
    return {};
}

// What an earlier run of this project has left behind is history once the user has started another.
void RunJournal::removeSuperseded() const
{
    const QString path = m_form.projectPath();
    if (path.isEmpty())
        return;
    for (const QString &file : m_folder.files()) {
        if (file == m_file->path() || projectOfRun(file) != realPath(path))
            continue;
        if (const auto lock = RunLock::take(file))
            RunFolder::remove(file);
    }
}

bool RunJournal::isCaughtUp()
{
    if (!m_file || m_file->isCaughtUp())
        return true;
    m_file->whenCaughtUp([this] { onCaughtUp(); });
    return false;
}

bool RunJournal::handingOver(const MessageInFlight &message)
{
    const auto appended =
        m_file->append(RunLines::send(m_clock.milliseconds(), m_form.tag(Control::lblTrascorso),
                                      positionsOf(message), message.identifier));
    if (!appended) {
        report(appended.error(),
               tr("The run is paused, because it cannot be recorded any more. What was sent so far "
                  "is known. Make room and press Resume."));
        return false;
    }
    m_hasBegun = true;
    m_messageFile = m_file;
    return true;
}

// A result that cannot be written comes with the next line that can; nothing is handed over before.
void RunJournal::settled(const MessageInFlight &message, const std::vector<RowResult> &results)
{
    const auto file = std::exchange(m_messageFile, nullptr);
    if (!file)
        return;
    QByteArray lines;
    const qint64 now = m_clock.milliseconds();
    for (std::size_t first = 0; first < results.size();) {
        std::vector<int> positions;
        std::size_t last = first;
        while (last < results.size() && results[last] == results[first])
            positions.push_back(message.rows[last++].position);
        lines += RunLines::done(now, positions, results[first].outcome, results[first].reply);
        first = last;
    }
    static_cast<void>(file->append(lines));
}

void RunJournal::over()
{
    if (!std::exchange(m_isOver, true) && m_file) {
        static_cast<void>(m_file->append(RunLines::over(m_clock.milliseconds())));
        if (!m_hasBegun) // a run that sent nothing has nothing to tell
            discard();
    }
    if (!m_file)
        m_projectLock.reset();
}

void RunJournal::rowsSeen()
{
    if (m_isOver && totalsOfChecked(m_recipients.rows()).isAccountedFor())
        discard();
}

// What became of the rows stands in the project's file now, and where the run goes on.
void RunJournal::saved()
{
    const RunState state = m_form.runState();
    if (state == RunState::Idle || state == RunState::Paused)
        discard();
    if (state == RunState::Paused) {
        if (auto lock = lockProject())
            m_projectLock = std::move(*lock);
    }
}

void RunJournal::situationChanged()
{
    if (m_form.situation().project != m_project && (m_file || m_projectLock))
        letGo();
}

// The project makes way for another one. What is not yet accounted for stays on the disk, to be
// asked about when the project is opened again.
void RunJournal::letGo()
{
    rowsSeen();
    close();
    m_isOver = true;
}

void RunJournal::close()
{
    m_file.reset();
    m_projectLock.reset();
}

void RunJournal::discard()
{
    if (m_file)
        m_file->remove();
    m_file.reset();
    if (m_isOver)
        m_projectLock.reset();
}

void RunJournal::adopt(const QString &file, std::shared_ptr<RunLock> lock, bool isOver)
{
    m_file = std::make_shared<JournalFile>(file, std::move(lock), m_clock, m_sync);
    m_isOver = isOver;
    m_hasBegun = true;
    m_project = m_form.situation().project;
}

tl::expected<std::shared_ptr<RunLock>, LockRefusal> RunJournal::lockOf(const QString &file) const
{
    for (const auto &own : {m_file, m_messageFile}) {
        if (own && own->path() == file)
            return own->lock();
    }
    return RunLock::take(file);
}

void RunJournal::forget(const QString &file)
{
    if (m_file && m_file->path() == file)
        discard();
    else
        RunFolder::remove(file);
}

void RunJournal::report(const FileError &error, const QString &consequence)
{
    m_AppLog.WriteMessage(QLatin1String("The run cannot be recorded: ") + error.toText());
    m_prompts.notice({Icon::Critical, tr("Run"), consequence, error.toText()});
}
