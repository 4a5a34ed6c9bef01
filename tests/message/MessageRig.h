#pragma once

#include "base/CodePage.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "message/AttachmentCommands.h"
#include "message/Attachments.h"
#include "message/MessageBodies.h"
#include "message/MessageFiles.h"
#include "message/MessageReader.h"
#include "message/MessageSize.h"
#include "settings/RegFileStore.h"
#include "support/DiskFiles.h"
#include "support/FakeSmtp.h"
#include "support/FakeTime.h"
#include "support/LogReader.h"
#include "support/ScriptedPrompts.h"

#include <QDir>
#include <QTemporaryDir>

/// The message with its files, commands and client. The program's folder and the folder of the
/// user's documents are two temporary ones.
struct MessageRig
{
    explicit MessageRig(Language language = Language::English) : form(language) {}

    /// Writes a document, in a subfolder when its name says so, and gives its path.
    QString document(const QString &name, const QByteArray &content) const
    {
        const QString path = documents.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, content);
        return path;
    }
    /// Makes that file the text or HTML message.
    void useMessage(Control box, const QString &path)
    {
        form.setTag(box, path);
        form.setText(box, path);
    }
    /// Writes an HTML file and makes it the message.
    QString useHtml(const QByteArray &content)
    {
        const QString path = document(QStringLiteral("letter.htm"), content);
        useMessage(Control::txtHTML, path);
        return path;
    }

    [[nodiscard]] QStringList logged() const { return messagesOfLog(folder.path()); }
    /// The path of a name in the working folder.
    [[nodiscard]] QString temp(const QString &name) const
    {
        return folder.filePath(QStringLiteral("Temp/") + name);
    }

    const QTemporaryDir folder;
    const QTemporaryDir documents;
    const FakeClock clock{};
    FakeFormats formats;
    const CodePage codePage{"windows-1252"};
    CLog AppLog{folder.path(), clock, formats, codePage};
    ScriptedPrompts prompts;
    RegFileStore settings{folder.filePath(QStringLiteral("settings.reg")).toStdString()};
    FakeSmtp SMTP;
    Form form;
    Attachments attachments;
    const MessageReader reader{prompts, AppLog, codePage};
    MessageSize size{form, attachments, reader, prompts, formats};
    MessageBodies bodies{form, reader, SMTP, folder.path()};
    MessageFiles files{form, size, prompts, settings, codePage};
    AttachmentCommands attachmentCommands{form, attachments, size, prompts, AppLog};
};
