#pragma once

#include "journal/Recovery.h"
#include "log/CLog.h"
#include "project/Workspace.h"
#include "settings/RegFileStore.h"
#include "smtp/ClientFakes.h"
#include "smtp/client/SmtpClient.h"
#include "support/FakeTime.h"

#include <QObject>

/// Does each job in the next turn of the event loop.
class PromptSync final : public QObject, public DiskSync
{
    Q_OBJECT

public:
    void begin(const AppendedFile::DiskJob &job, std::function<void()> begins, Done done) override;
};

/// A second is over in the next turn of the event loop.
class HastyTimer final : public SecondTimer
{
public:
    HastyTimer();

    void setEnabled(bool enabled) override;
    [[nodiscard]] bool isEnabled() const override { return m_timer.isActive(); }

private:
    QTimer m_timer;
};

/// Declines to save before a run starts. Every other box, but for news, is a complaint.
class DecliningPrompts final : public Prompts
{
public:
    std::function<void(const QString &)> complain;

    void notice(const Notice &notice) override;
    void ask(const Question &question, Stands stands, std::function<void(Answer)> then) override;
    void askText(const InputBox &box, Stands stands, std::function<void(QString)> then) override;
    void askFile(const FileDialog &dialog, Stands stands,
                 std::function<void(QString)> then) override;
};

/// The program, as far as it sends: everything is real but time, logins and the screen.
class Mailing final : public QObject
{
    Q_OBJECT

public:
    using Say = std::function<void(const QString &)>;

    /// Works in that folder. `say` hears what became of everybody, or what is wrong.
    Mailing(const QString &folder, DiskSync &sync, Say say);

    /// Sends the project to its end and saves it: a run that was left behind goes on, in any other
    /// case it starts.
    void send(const QString &project);

Q_SIGNALS:
    void ended();

private:
    void end();
    void tellRows();

    Say m_say;
    SystemClock m_clock;
    FakeFormats m_formats;
    CodePage m_codePage{"windows-1252"};
    DecliningPrompts m_prompts;
    ClientFakes m_fakes;
    SmtpClient m_client;
    HastyTimer m_Timer;
    FakeTimer m_Timer2;
    RegFileStore m_store;
    CLog m_log;
    Workspace m_workspace;
    RunJournal m_journal;
    Recovery m_recovery;
};
