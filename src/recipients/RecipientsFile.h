#pragma once

#include "base/CodePage.h"
#include "form/Form.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"

#include <QCoreApplication>

/// What a recipients file holds, one recipient a line: name ";" address, anything after a further
/// ";" ignored, and what follows "#" in the address. An address with a space is not valid here.
struct RecipientsText
{
    std::vector<Recipient> rows; ///< the lines with a valid address, numbered without gaps
    QString rejected;            ///< "name - address" and CR LF for each other line
    bool complete = true;        ///< false when a line without ";" or one too many ended it
};

/// The most rows that one import can make.
constexpr int MostImportedRows = 32767;

[[nodiscard]] RecipientsText readRecipientsText(QStringView text, const QString &waitingWord);

/// The project's recipients file, and the list made anew from it.
class RecipientsFile
{
    Q_DECLARE_TR_FUNCTIONS(RecipientsFile)

public:
    RecipientsFile(Form &form, RecipientList &list, Prompts &prompts, CLog &AppLog,
                   const CodePage &codePage, const QString &programFolder);

    /// Asks for a file and imports it.
    void cmdDestinatari_Click();
    /// Makes that file, absolute or relative to the program's folder, the project's and imports it.
    void SetRecipientsFile(const QString &name);
    /// Replaces the list by what recipientsFilePath holds.
    void ImportRecipientsFile();

private:
    void use(const QString &recipientsFilePath);

    Form &m_form;
    RecipientList &m_list;
    Prompts &m_prompts;
    CLog &m_AppLog;
    const CodePage &m_codePage;
    QString m_programFolder;
};
