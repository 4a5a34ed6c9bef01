#pragma once

#include "account/Accounts.h"
#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/RegionalFormats.h"
#include "cli/Output.h"
#include "journal/RunJournal.h"
#include "log/CLog.h"
#include "preflight/TrialMessage.h"
#include "project/Workspace.h"
#include "settings/SettingsStore.h"
#include "smtp/MessageComposer.h"
#include "smtp/ServerProbe.h"
#include "smtp/Smtp.h"

/// What the commands are given from outside.
struct CliSurroundings
{
    SettingsStore &settings;
    Smtp &SMTP;      ///< the client of the runs
    Smtp &trialSMTP; ///< one more, for what is made outside runs
    MessageComposer &trialComposer;
    ServerProbe &probe;
    Accounts &accounts;
    const Clock &clock;
    const RegionalFormats &formats;
    const CodePage &codePage;
    SecondTimer &Timer;
    SecondTimer &Timer2;
    DiskSync &sync;
    QString programFolder;
    QString computerName;
    Output &output;

    /// What a message outside a run is made of.
    [[nodiscard]] TrialParts forTrial(Workspace &workspace) const
    {
        return {workspace.form, workspace.recipients, workspace.reader, workspace.filler,
                trialSMTP,      trialComposer};
    }

    /// What the journal of a run works with.
    [[nodiscard]] JournalParts forJournal(Workspace &workspace, Prompts &prompts,
                                          CLog &AppLog) const
    {
        return {workspace.form,
                workspace.recipients,
                workspace.engine,
                workspace.projectFile,
                prompts,
                AppLog,
                clock,
                codePage,
                sync,
                programFolder};
    }

    /// The surroundings of a workspace for a command: English, whatever the setting says.
    [[nodiscard]] Surroundings forWorkspace(Prompts &prompts, CLog &AppLog) const
    {
        return {Language::English, prompts,  AppLog, settings, SMTP,          clock,
                formats,           codePage, Timer,  Timer2,   programFolder, computerName};
    }
};
