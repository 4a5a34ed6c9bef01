#include "journal/RunBar.h"

#include "recipients/TotalsText.h"

#include <algorithm>

namespace {

bool isCheckedAndMayHaveIt(const Recipient &row)
{
    return row.checked && mayHaveTheMessage(row);
}

/// Start has taken the row's state, and nothing was handed over for it since.
bool isCheckedAndMayHaveAnEarlierOne(const Recipient &row)
{
    const Outcome outcome = row.attempt.outcome;
    return row.checked && stateOf(row) == RowState::Waiting &&
           (outcome == Outcome::Sent || outcome == Outcome::InDoubt);
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
    const bool anyHasIt = std::ranges::any_of(rows, isCheckedAndMayHaveIt);
    const auto earlier =
        anyHasIt ? 0 : std::ranges::count_if(rows, isCheckedAndMayHaveAnEarlierOne);
    QStringList pieces;
    Content content;
    if (meant.waiting > 0 && (meant.sent > 0 || someHaveProblems)) {
        pieces.append(words.soFar(meant));
        content.buttons = {Control::cmdShowRest};
    } else if (meant.waiting == 0 && someHaveProblems) {
        pieces.append(words.atTheEnd(meant));
        content.buttons = {Control::cmdReport};
        if (meant.refused > 0)
            content.buttons.prepend(Control::cmdCheckRefused);
    }
    // A Start that failed before it came to them: the next one would mail them again.
    if (earlier > 0)
        pieces.append(words.earlier(static_cast<int>(earlier)));
    if (pieces.isEmpty())
        return {};
    if (anyHasIt || earlier > 0)
        content.buttons.prepend(Control::cmdUncheckSent);
    content.text = pieces.join(QLatin1String(", ")) + u'.';
    return content;
}

bool RunBar::isLeft(const Recipient &row)
{
    return row.checked && stateOf(row) == RowState::Waiting;
}

void RunBar::cmdUncheckSent_Click()
{
    auto positions = m_recipients.positionsWhere(isCheckedAndMayHaveIt);
    if (positions.empty())
        positions = m_recipients.positionsWhere(isCheckedAndMayHaveAnEarlierOne);
    m_commands.cmdUncheckAll_Click(positions);
}

// Rows that are as they should be keep their pictures.
void RunBar::cmdCheckRefused_Click()
{
    m_commands.cmdCheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return !row.checked && isRefused(row); }));
    m_commands.cmdUncheckAll_Click(m_recipients.positionsWhere(
        [](const Recipient &row) { return row.checked && !isRefused(row); }));
}
