#pragma once

#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/Language.h"
#include "base/RegionalFormats.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "message/AttachmentCommands.h"
#include "message/Attachments.h"
#include "message/MessageBodies.h"
#include "message/MessageFiles.h"
#include "message/MessageReader.h"
#include "message/MessageSize.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFile.h"
#include "project/WindowSettings.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientCommands.h"
#include "recipients/RecipientList.h"
#include "recipients/RecipientsFile.h"
#include "sending/MessageFiller.h"
#include "sending/SendingEngine.h"
#include "settings/SettingsStore.h"

class Smtp;

/// What a workspace is given from outside. All of it outlives the workspace.
struct Surroundings
{
    Language language;
    Prompts &prompts;
    CLog &AppLog;
    SettingsStore &settings;
    Smtp &SMTP;
    const Clock &clock;
    const RegionalFormats &formats;
    const CodePage &codePage;
    SecondTimer &Timer;
    SecondTimer &Timer2;
    QString programFolder;
    QString computerName;
};

/// One project and everything that works on it, wired together: what a main window shows, and what
/// the command line works with. It decides nothing.
class Workspace
{
public:
    explicit Workspace(const Surroundings &from);

    Form form;
    RecipientList recipients;
    Attachments attachments;
    MessageReader reader;
    MessageSize size;
    MessageBodies bodies;
    MessageFiller filler;
    SendingEngine engine;
    ProjectFile projectFile;
    WindowSettings windowSettings;
    ProjectCommands projectCommands;
    RecipientCommands recipientCommands;
    RecipientsFile recipientsFile;
    MessageFiles messageFiles;
    AttachmentCommands attachmentCommands;
};
