#pragma once

#include "base/CodePage.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "recipients/RecipientCommands.h"
#include "recipients/RecipientsFile.h"
#include "support/DiskFiles.h"
#include "support/FakeTime.h"
#include "support/LogReader.h"
#include "support/ScriptedPrompts.h"

#include <QTemporaryDir>

/// The recipient list with its commands, in a folder of its own.
struct RecipientsRig
{
    explicit RecipientsRig(Language language = Language::English) : form(language) {}

    /// Puts rows of these names and image indices into the list, numbered, checked when the index
    /// is even.
    void fill(const QStringList &names, qint16 imageIndex = RowImage::Checked)
    {
        for (const QString &name : names) {
            Recipient row;
            row.number = QString::number(list.count() + 1);
            row.name = name;
            row.address = name.toLower() + QStringLiteral("@example.com");
            row.state = stateWord(RowState::Waiting, form.language());
            row.checked = imageIndex % 2 == 0;
            row.imageIndex = imageIndex;
            list.append(row);
        }
    }

    /// One text of each row, in the list's order.
    [[nodiscard]] QStringList texts(QString Recipient::*column) const
    {
        QStringList all;
        for (const Recipient &row : list.rows())
            all += row.*column;
        return all;
    }
    [[nodiscard]] QStringList numbers() const { return texts(&Recipient::number); }
    [[nodiscard]] QStringList names() const { return texts(&Recipient::name); }
    [[nodiscard]] QStringList addresses() const { return texts(&Recipient::address); }

    [[nodiscard]] QStringList logged() const { return messagesOfLog(folder.path()); }

    const QTemporaryDir folder;
    const FakeClock clock{};
    const FakeFormats formats{};
    const CodePage codePage{"windows-1252"};
    CLog AppLog{folder.path(), clock, formats, codePage};
    ScriptedPrompts prompts;
    Form form;
    RecipientList list{QLocale(QLocale::English)};
    RecipientCommands commands{form, list, prompts, AppLog};
    RecipientsFile file{form, list, prompts, AppLog, codePage, folder.path()};
};
