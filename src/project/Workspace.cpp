#include "project/Workspace.h"

Workspace::Workspace(const Surroundings &from)
    : form(from.language),
      reader(from.prompts, from.AppLog, from.codePage),
      size(form, attachments, reader, from.prompts, from.formats),
      bodies(form, reader, from.SMTP, from.programFolder),
      filler(form, attachments, from.clock, from.computerName),
      engine({form, recipients, filler, bodies, from.SMTP, from.prompts, from.AppLog, from.clock,
              from.formats, from.Timer, from.Timer2,
              [this](std::function<void(SaveOutcome)> then) {
                  projectCommands.save(std::move(then));
              }}),
      projectFile(form, recipients, attachments, size, engine, from.prompts, from.AppLog,
                  from.codePage),
      windowSettings(form, from.settings, from.codePage, from.programFolder),
      projectCommands({form, recipients, attachments, bodies, size, engine, projectFile,
                       windowSettings, from.prompts, from.AppLog}),
      recipientCommands(form, recipients, from.prompts, from.AppLog),
      recipientsFile(form, recipients, from.prompts, from.AppLog, from.codePage,
                     from.programFolder),
      messageFiles(form, size, from.prompts, from.settings, from.codePage),
      attachmentCommands(form, attachments, size, from.prompts, from.AppLog)
{}
