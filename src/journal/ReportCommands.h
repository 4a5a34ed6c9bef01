#pragma once

#include "base/Clock.h"
#include "form/Form.h"
#include "journal/Report.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"

#include <QCoreApplication>

/// Exporting the report of the project that is open.
class ReportCommands
{
    Q_DECLARE_TR_FUNCTIONS(ReportCommands)

public:
    ReportCommands(const Form &form, const RecipientList &recipients, const Clock &clock,
                   Prompts &prompts, CLog &AppLog);

    /// Asks for a file and writes the report as it is then; a box says when it cannot be written.
    void cmdReport_Click();
    /// Writes it as it is now, and logs that.
    [[nodiscard]] tl::expected<void, FileError> write(const QString &path) const;

private:
    [[nodiscard]] Report report() const;

    const Form &m_form;
    const RecipientList &m_recipients;
    const Clock &m_clock;
    Prompts &m_prompts;
    CLog &m_AppLog;
};
