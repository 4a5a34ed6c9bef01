#include "recipients/RecipientCommands.h"

#include "base/modMain.h"

RecipientCommands::RecipientCommands(Form &form, RecipientList &list, Prompts &prompts,
                                     CLog &AppLog)
    : m_form(form), m_list(list), m_prompts(prompts), m_AppLog(AppLog)
{}

Stands RecipientCommands::whileAddingIsPossible() const
{
    return [&form = m_form, project = m_form.situation().project] {
        return form.situation().project == project && form.isEnabled(Control::cmdAdd);
    };
}

void RecipientCommands::cmdAdd_Click()
{
    const InputBox box{tr("New recipient"), tr("Name of the new recipient:")};
    m_prompts.askText(box, whileAddingIsPossible(), [this](const QString &name) {
        if (!name.isEmpty())
            askAddress(name);
    });
}

void RecipientCommands::askAddress(const QString &name)
{
    const InputBox box{tr("New recipient"), tr("E-mail address of the new recipient:")};
    m_prompts.askText(box, whileAddingIsPossible(), [this, name](const QString &address) {
        if (address.isEmpty())
            return;
        if (IsValidEmail(address)) {
            append({{name, address}});
            return;
        }
        m_prompts.notice({Icon::Exclamation, tr("New recipient"),
                          u'\'' + address + tr("' isn't a valid e-mail address.")});
        askAddress(name);
    });
}

void RecipientCommands::append(const std::vector<NewRecipient> &recipients)
{
    std::vector<Recipient> rows;
    rows.reserve(recipients.size());
    int number = m_list.count();
    for (const NewRecipient &recipient : recipients) {
        Recipient row;
        row.number = QString::number(++number);
        row.name = recipient.name;
        row.address = recipient.address;
        row.state = stateWord(RowState::Waiting, m_form.language());
        row.imageIndex = RowImage::AddedByHand;
        rows.push_back(row);
    }
    m_list.appendAll(std::move(rows));
    m_list.sort(Column::Name, Qt::AscendingOrder);
    m_form.setProjectModified(true);
    for (const NewRecipient &recipient : recipients) {
        m_AppLog.WriteMessage(QLatin1String("New recipient added: '") + recipient.name +
                              QLatin1String("' - ") + recipient.address);
    }
}

void RecipientCommands::add(const std::vector<NewRecipient> &recipients)
{
    std::vector<NewRecipient> valid;
    QString rejected;
    for (const NewRecipient &recipient : recipients) {
        if (IsValidEmail(recipient.address)) {
            valid.push_back(recipient);
        } else {
            rejected +=
                QLatin1String("\r\n") + recipient.name + QLatin1String(" - ") + recipient.address;
        }
    }
    if (!valid.empty())
        append(valid);
    // Who adds from another window does not see the list grow, and would add once more.
    QString text = tr("Recipients added: %1").arg(valid.size());
    if (!rejected.isEmpty())
        text += QLatin1String("\r\n") + tr("These recipients couldn't be added:") + rejected;
    m_prompts.notice({Icon::Information, QStringLiteral("Sorvanta"), text});
}

void RecipientCommands::cmdRemove_Click(const std::vector<int> &selected)
{
    for (const int position : selected) {
        m_AppLog.WriteMessage(QLatin1String("The recipient '") + m_list.at(position).name +
                              QLatin1String("' has been removed"));
    }
    m_list.remove(selected);
    m_form.setProjectModified(true);
    m_list.renumber();
}

void RecipientCommands::cmdCheckAll_Click(const std::vector<int> &selected)
{
    for (const int position : selected)
        m_list.setCheckedWithImage(position, true, RowImage::Checked);
    m_form.setProjectModified(true);
}

void RecipientCommands::cmdUncheckAll_Click(const std::vector<int> &selected)
{
    for (const int position : selected)
        m_list.setCheckedWithImage(position, false, RowImage::Unchecked);
    m_form.setProjectModified(true);
}

void RecipientCommands::lstDestinatari_ColumnClick(int place)
{
    // A click on "N°" does nothing, also when another column sorts.
    if (place < 2 || place > static_cast<int>(Column::State) + 1)
        return;
    const auto column = static_cast<Column>(place - 1);
    Qt::SortOrder order = m_list.sortOrder();
    if (column == m_list.sortColumn())
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_list.sort(column, order);
}

void RecipientCommands::lstDestinatari_ItemCheck(int position, bool checked)
{
    const qint16 step = checked ? -1 : 1;
    const auto image = static_cast<qint16>(m_list.at(position).imageIndex + step);
    m_list.setCheckedWithImage(position, checked, image);
    m_form.setProjectModified(true);
}
