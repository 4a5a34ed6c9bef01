#pragma once

#include "form/Form.h"
#include "recipients/RecipientCommands.h"
#include "recipients/RecipientList.h"

#include <QList>

/// The bar under the recipient list: what is known of those whom a run meant or means while no run
/// is shown, and what is usually done next. It follows the rows once per turn of the event loop,
/// however many of them change.
class RunBar : public QObject
{
    Q_OBJECT

public:
    struct Content
    {
        QString text; ///< empty: there is no bar
        QList<Control> buttons;

        bool operator==(const Content &) const = default;
    };

    RunBar(Form &form, const RecipientList &recipients, RecipientCommands &commands);

    /// What there is to be shown. The text is that of the form's lblBar too.
    [[nodiscard]] const Content &content() const { return m_content; }
    /// What it shows for these rows.
    [[nodiscard]] static Content contentFor(const std::vector<Recipient> &rows, Language language);
    /// Whether the row is one of those whom the run did not come to: checked, and still waiting.
    [[nodiscard]] static bool isLeft(const Recipient &row);

    /// Unchecks the rows that have the message, and those that may have it: whoever is to risk a
    /// second one is checked by hand. Where the last run reached nobody, those of the run before.
    void cmdUncheckSent_Click();
    void cmdCheckRefused_Click();

Q_SIGNALS:
    void changed();

private:
    void updateSoon();
    void update();

    Form &m_form;
    const RecipientList &m_recipients;
    RecipientCommands &m_commands;
    Content m_content;
    bool m_updateIsDue = false;
};
