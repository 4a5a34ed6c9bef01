#include "journal/RunJournal.h"

#include "journal/RunLines.h"

#include <QFileInfo>
#include <QSysInfo>

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

RunJournal::Locked RunJournal::lockOfProject(const QString &path) const
{
    if (path.isEmpty()) // nobody else can open it
        return nullptr;
    const QString beside = realPath(path);
    const QString standIn = m_folder.standInFor(beside);
    for (const auto &own : {m_projectLock, m_reserved}) {
        if (own && (own->file() == beside || own->file() == standIn))
            return own;
    }
    auto lock = RunLock::take(beside);
    // Where nobody may write, at least this machine's own programs know of each other.
    if (!lock && !lock.error().isHeld)
        lock = RunLock::take(standIn);
    return lock;
}

bool RunJournal::claim()
{
    auto lock = lockOfProject(m_form.projectPath());
    if (!lock && lock.error().isHeld) {
        sayHeld(lock.error());
        return false;
    }
    if (!lock) {
        m_prompts.notice({Icon::Critical, tr("Run"),
                          tr("The run cannot be recorded, and is not started."),
                          tr("%1: it cannot be written").arg(lock.error().file)});
        return false;
    }
    if (isOutdated())
        return false;
    m_projectLock = std::move(*lock);
    m_project = m_form.situation().project;
    m_isStarting = m_form.runState() == RunState::Idle;
    return true;
}

void RunJournal::sayHeld(const LockRefusal &holder)
{
    const bool isHere = holder.host == QSysInfo::machineHostName();
    m_prompts.notice(
        {Icon::Exclamation, tr("Run"),
         tr("Another program is running this project, or has a run of it that is not saved yet: "
            "process %1 on %2. It cannot be run twice at the same time.")
             .arg(holder.process)
             .arg(holder.host),
         isHere ? tr("If that program is gone, delete the file %1.").arg(holder.file)
                : tr("How far that run came is known on %1 alone: it can be gone on with there. If "
                     "that does not matter any more, delete the file %2.")
                      .arg(holder.host, holder.file)});
}

// What this window shows may be older than what another program has done since: a run that started
// from it would mail people again.
bool RunJournal::isOutdated()
{
    const bool ranElsewhere = m_staleProject != 0 && m_staleProject == m_form.situation().project;
    if (ranElsewhere || hasRunOfAnotherProgram() || m_projectFile.isChangedOnDisk()) {
        m_prompts.notice({Icon::Exclamation, tr("Run"),
                          tr("Another program has run this project, or changed its file, since it "
                             "was opened here. Open it again to see how far it came.")});
        return true;
    }
    return false;
}

bool RunJournal::hasRunOfAnotherProgram() const
{
    const QStringList files = otherRecordsOfProject();
    return std::any_of(files.begin(), files.end(), [this](const QString &file) {
        const auto record = read(file);
        return record && record->hasBegun() && !m_superseded.contains(file);
    });
}

QStringList RunJournal::otherRecordsOfProject() const
{
    const QString path = m_form.projectPath();
    QStringList files = path.isEmpty() ? QStringList() : m_folder.files();
    files.removeIf([this, project = realPath(path)](const QString &other) {
        return other == file() || projectOfRun(other) != project;
    });
    return files;
}

std::optional<RunRecord> RunJournal::read(const QString &file) const
{
    const auto content = readWholeFile(file);
    return content ? readRun(*content, m_codePage, m_form.language()) : std::nullopt;
}

// Nothing is said yet: whoever only looks at the project is not disturbed.
void RunJournal::pausedRunOpened()
{
    m_isOver = false;
    m_project = m_form.situation().project;
    if (auto lock = lockOfProject(m_form.projectPath()))
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
    m_isStarting = false;
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
    const bool hasBegun = record.hasBegun();
    if (auto begun = file->begin(encodeRun(std::move(record), m_codePage)); !begun)
        return begun;
    if (!goesOn) {
        if (m_file)
            m_file->remove();
        m_file = std::move(file);
        // Also when only earlier runs sent anything: what is known of that is in the file.
        m_hasBegun = hasBegun;
    }
    return {};
}

// Those that the user knows of, and those that tell of no message. What cannot be read stays.
void RunJournal::removeSuperseded()
{
    const QStringList known = std::exchange(m_superseded, {});
    for (const QString &file : otherRecordsOfProject()) {
        const auto record = read(file);
        const bool isPast = known.contains(file) || (record && !record->hasBegun());
        if (isPast && RunLock::take(file))
            RunFolder::remove(file);
    }
}

bool RunJournal::isCaughtUp()
{
    if (!m_file || m_file->isCaughtUp())
        return true;
    m_somebodyWaits = true;
    m_file->whenCaughtUp([this] {
        m_somebodyWaits = false;
        onCaughtUp();
    });
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
    file->appendNowOrLater(lines);
}

void RunJournal::over()
{
    if (!std::exchange(m_isOver, true) && m_file) {
        noteWhoIsAccountedFor();
        m_file->appendNowOrLater(RunLines::over(m_clock.milliseconds()));
        if (!m_hasBegun) // a run that sent nothing has nothing to tell
            discard();
    }
    if (!m_file)
        m_projectLock.reset();
}

// By the check marks with which the run ended: whoever unchecks a row afterwards knows no more
// about it.
void RunJournal::noteWhoIsAccountedFor()
{
    m_isAccountedFor = totalsOfChecked(m_recipients.rows()).waiting == 0 &&
                       totalsOf(m_recipients.rows()).inDoubt == 0;
}

void RunJournal::rowsSeen()
{
    if (m_isOver && m_isAccountedFor)
        discard();
}

// What became of the rows stands in the project's file now, and where the run goes on.
void RunJournal::saved()
{
    const RunState state = m_form.runState();
    // A Start that failed has reset the states: they say less than the record.
    const bool statesTellAll = state == RunState::Idle ? !m_isStarting : state == RunState::Paused;
    if (statesTellAll)
        discard();
    if (state == RunState::Paused) {
        if (auto lock = lockOfProject(m_form.projectPath()))
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
    m_isStarting = false;
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
    // There is nothing to wait for any more.
    if (std::exchange(m_somebodyWaits, false))
        QMetaObject::invokeMethod(
            this, [this] { onCaughtUp(); }, Qt::QueuedConnection);
}

void RunJournal::adopt(const QString &file, std::shared_ptr<RunLock> lock, bool isOver)
{
    m_file = std::make_shared<JournalFile>(file, std::move(lock), m_clock, m_sync);
    m_isOver = isOver;
    m_hasBegun = true;
    m_project = m_form.situation().project;
    m_projectLock = std::exchange(m_reserved, nullptr);
    if (isOver)
        noteWhoIsAccountedFor();
}

RunJournal::Locked RunJournal::lockOf(const QString &file) const
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
