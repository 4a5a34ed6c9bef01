#pragma once

#include "form/Form.h"
#include "log/CLog.h"
#include "prompts/Prompts.h"
#include "recipients/RecipientList.h"

#include <QCoreApplication>

#include <vector>

/// Somebody who is to become a row of the list.
struct NewRecipient
{
    QString name;
    QString address;
};

/// Editing the recipient list by hand. Positions given are those of the selected rows, ascending.
class RecipientCommands
{
    Q_DECLARE_TR_FUNCTIONS(Recipients)

public:
    RecipientCommands(Form &form, RecipientList &list, Prompts &prompts, CLog &AppLog);

    void cmdAdd_Click();
    /// Adds them all as if by hand, but for those without a valid address, and says what was done.
    void add(const std::vector<NewRecipient> &recipients);
    void cmdRemove_Click(const std::vector<int> &selected);
    void cmdCheckAll_Click(const std::vector<int> &selected);
    void cmdUncheckAll_Click(const std::vector<int> &selected);
    /// A click on the heading of the column of that place, 1-based.
    void lstDestinatari_ColumnClick(int place);
    /// The check box of a row was changed.
    void lstDestinatari_ItemCheck(int position, bool checked);

private:
    void askAddress(const QString &name);
    void append(const std::vector<NewRecipient> &recipients);
    [[nodiscard]] Stands whileAddingIsPossible() const;

    Form &m_form;
    RecipientList &m_list;
    Prompts &m_prompts;
    CLog &m_AppLog;
};
