#pragma once

#include "form/Form.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"

#include <QCoreApplication>

#include <vector>

/// Editing the recipient list by hand. Positions given are those of the selected rows, ascending.
class RecipientCommands
{
    Q_DECLARE_TR_FUNCTIONS(Recipients)

public:
    RecipientCommands(Form &form, RecipientList &list, Prompts &prompts, CLog &AppLog);

    void cmdAdd_Click();
    void cmdRemove_Click(const std::vector<int> &selected);
    void cmdCheckAll_Click(const std::vector<int> &selected);
    void cmdUncheckAll_Click(const std::vector<int> &selected);
    /// A click on the heading of the column of that place, 1-based.
    void lstDestinatari_ColumnClick(int place);
    /// The check box of a row was changed.
    void lstDestinatari_ItemCheck(int position, bool checked);

private:
    void askAddress(const QString &name);
    void add(const QString &name, const QString &address);
    [[nodiscard]] Stands whileAddingIsPossible() const;

    Form &m_form;
    RecipientList &m_list;
    Prompts &m_prompts;
    CLog &m_AppLog;
};
