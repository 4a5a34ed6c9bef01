#include "journal/RunBar.h"

#include "recipients/TotalsText.h"

#include <algorithm>

namespace {

bool isRefused(const Recipient &row)
{
    return stateOf(row) == RowState::Error;
}

bool isCheckedAndMayHaveIt(const Recipient &row)
{
    return row.checked && mayHaveTheMessage(row);
}

} // namespace

RunBar::RunBar(Form &form, const RecipientList &recipients, RecipientCommands &commands)
    : m_form(form), m_recipients(recipients), m_commands(commands)
{
    connect(&form, &Form::runStateChanged, this, &RunBar::updateSoon);
    connect(&recipients, &RecipientList::rowsChanged, this, &RunBar::updateSoon);
    connect(&recipients, &RecipientList::rowChanged, this, &RunBar::updateSoon);
    update();
}

void RunBar::updateSoon()
{
    if (std::exchange(m_updateIsDue, true))
        return;
    QMetaObject::invokeMethod(this, &RunBar::update, Qt::QueuedConnection);
}

void RunBar::update()
{
    m_updateIsDue = false;
    const RunState state = m_form.runState();
    // Nobody counts the rows for a run that changes them all the time.
    Content content =
        state == RunState::Idle ? contentFor(m_recipients.rows(), m_form.language()) : Content();
    if (content == m_content)
        return;
    m_content = std::move(content);
    m_form.setText(Control::lblBar, m_content.text);
    Q_EMIT changed();
}

RunBar::Content RunBar::contentFor(const std::vector<Recipient> &rows, Language language)
{
    const Totals meant = totalsOfMeant(rows);
    const TotalsText words(language);
    const bool someHaveProblems = meant.refused > 0 || meant.inDoubt > 0;
    if (meant.waiting > 0 && (meant.sent > 0 || someHaveProblems)) {
        Content content{words.soFar(meant) + u'.', {Control::cmdShowRest}};
        if (std::ranges::any_of(rows, isCheckedAndMayHaveIt))
            content.buttons.prepend(Control::cmdUncheckSent);
        return content;
    }
    if (meant.waiting == 0 && someHaveProblems) {
        Content content{words.atTheEnd(meant) + u'.', {Control::cmdReport}};
        if (meant.refused > 0)
            content.buttons.prepend(Control::cmdCheckRefused);
        return content;
    }
    return {};
}

bool RunBar::isLeft(const Recipient &row)
{
    return row.checked && stateOf(row) == RowState::Waiting;
}

void RunBar::cmdUncheckSent_Click()
{
    m_commands.cmdUncheckAll_Click(m_recipients.positionsWhere(isCheckedAndMayHaveIt));
}

// Rows that are as they should be keep their pictures.
void RunBar::cmdCheckRefused_Click()
{
    m_commands.cmdCheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return !row.checked && isRefused(row); }));
    m_commands.cmdUncheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return row.checked && !isRefused(row); }));
}
