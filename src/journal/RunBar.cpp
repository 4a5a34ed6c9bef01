#include "journal/RunBar.h"

#include "recipients/TotalsText.h"

namespace {

bool isRefused(const Recipient &row)
{
    return stateOf(row) == RowState::Error;
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
    Content content = state == RunState::Idle
                          ? contentFor(totalsOfChecked(m_recipients.rows()), m_form.language())
                          : Content();
    if (content == m_content)
        return;
    m_content = std::move(content);
    m_form.setText(Control::lblBar, m_content.text);
    Q_EMIT changed();
}

RunBar::Content RunBar::contentFor(const Totals &checked, Language language)
{
    const TotalsText words(language);
    const bool someHaveProblems = checked.refused > 0 || checked.inDoubt > 0;
    if (checked.waiting > 0 && (checked.sent > 0 || someHaveProblems)) {
        return {words.soFar(checked) + u'.', {Control::cmdUncheckSent, Control::cmdShowRest}};
    }
    if (checked.waiting == 0 && someHaveProblems) {
        Content content{words.atTheEnd(checked) + u'.', {Control::cmdReport}};
        if (checked.refused > 0)
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
    m_commands.cmdUncheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return row.checked && mayHaveTheMessage(row); }));
}

// Rows that are as they should be keep their pictures.
void RunBar::cmdCheckRefused_Click()
{
    m_commands.cmdCheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return !row.checked && isRefused(row); }));
    m_commands.cmdUncheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return row.checked && !isRefused(row); }));
}
