#pragma once

#include "journal/Recovery.h"
#include "support/DiskFiles.h"
#include "support/FakeDiskSync.h"
#include "support/WorkspaceRig.h"

#include <optional>

/// A workspace whose runs are recorded, in a folder that outlives it: what a program leaves behind
/// when it dies, the next one of the same folder finds.
template <typename PromptsType>
class JournalRigWith
{
public:
    explicit JournalRigWith(Language language = Language::English)
    {
        begin(language);
        fillForm(4);
    }
    /// A form that Start accepts; its message outlives the program.
    void fillForm(int recipientCount)
    {
        rig->fillForm(recipientCount);
        const QString message = path(QStringLiteral("message.txt"));
        writeFile(message, "Dear *NOME*,\r\n");
        rig->w.form.setTag(Control::txtEmail, message);
        rig->w.form.setText(Control::txtEmail, message);
        rig->w.form.setProjectModified(false);
    }

    /// The program dies: nothing comes to an orderly end. Then another one is started.
    void die(Language language = Language::English)
    {
        end();
        begin(language);
    }
    /// The project is saved under that name.
    void save(const QString &name = QStringLiteral("mailing.svk"))
    {
        rig->w.projectFile.SaveProject(path(name), [](bool saved) { QVERIFY(saved); });
    }
    [[nodiscard]] QString path(const QString &name = QStringLiteral("mailing.svk")) const
    {
        return folder.filePath(name);
    }
    /// The records that lie in the folder.
    [[nodiscard]] QStringList records() const
    {
        QStringList names =
            QDir(path(QStringLiteral("Runs"))).entryList({QStringLiteral("*.run")}, QDir::Files);
        return names;
    }
    /// The content of the only one.
    [[nodiscard]] QByteArray record() const
    {
        const QStringList names = records();
        if (names.size() != 1)
            qFatal("there is not exactly one record");
        return readFile(path(QStringLiteral("Runs/") + names.front()));
    }
    [[nodiscard]] std::optional<RunRecord> readRecord() const
    {
        return readRun(record(), rig->codePage, Language::English);
    }
    /// The disk does everything that is asked of it.
    void flushDisk()
    {
        while (sync->jobs() > 0) {
            sync->start();
            sync->finish();
        }
    }
    /// Answers the question about the run of the project that is opened.
    void openAnswering(Answer answer, const QString &name = QStringLiteral("mailing.svk"))
    {
        rig->prompts.expectAnswer(Topic::InterruptedRun, answer);
        rig->w.projectCommands.openAsking(
            path(name), [this, name] { rig->w.projectCommands.open(path(name)); });
        rig->prompts.answerAll();
    }
    void stop()
    {
        rig->prompts.expectAnswer(Topic::StopProcedure, Answer::Ok);
        rig->w.engine.cmdStop_Click();
        rig->prompts.answerAll();
    }
    void pauseOrResume() { rig->w.engine.cmdPausa_Click(); }
    [[nodiscard]] const Attempt &attempt(int position) const
    {
        return rig->w.recipients.at(position).attempt;
    }

    QTemporaryDir folder;
    std::optional<RigWith<PromptsType>> rig;
    std::optional<FakeDiskSync> sync;
    std::optional<RunJournal> journal;
    std::optional<Recovery> recovery;

private:
    void begin(Language language)
    {
        rig.emplace(language);
        sync.emplace();
        journal.emplace(JournalParts{rig->w.form, rig->w.recipients, rig->w.engine,
                                     rig->w.projectFile, rig->prompts, rig->log, rig->clock,
                                     rig->codePage, *sync, folder.path()});
        recovery.emplace(*journal, rig->w.projectCommands, rig->w.form, rig->prompts);
    }
    void end()
    {
        recovery.reset();
        journal.reset();
        sync.reset();
        rig.reset();
    }
};

using JournalRig = JournalRigWith<ScriptedPrompts>;
