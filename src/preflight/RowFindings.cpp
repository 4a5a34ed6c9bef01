#include "preflight/RowFindings.h"

#include "preflight/AddressRules.h"
#include "preflight/CappedFindings.h"

#include <QCoreApplication>
#include <QHash>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Preflight)
};

Finding adviceAbout(const Recipient &row, const QString &text)
{
    return {Finding::Kind::Advice, text, Control::lstDestinatari, row.id};
}

} // namespace

QList<Finding> findingsInRows(const Form &form, const RecipientList &recipients, bool usesNames)
{
    CappedFindings twice;
    CappedFindings unusable;
    CappedFindings nameless;
    QHash<QString, const Recipient *> firstOf;
    firstOf.reserve(recipients.count());
    int checked = 0;
    int mailed = 0;
    for (const Recipient &row : recipients.rows()) {
        if (!row.checked)
            continue;
        ++checked;
        mailed += mayHaveTheMessage(row) ? 1 : 0;
        const QString key = addressKey(row.address);
        const auto known = firstOf.constFind(key);
        if (known == firstOf.constEnd()) {
            firstOf.insert(key, &row);
        } else if (twice.takesNext()) {
            twice.add(adviceAbout(row, Texts::tr("\"%1\" would get the message twice: rows %2 and "
                                                 "%3.")
                                           .arg(row.address, (*known)->number, row.number)));
        }
        if (const QString fault = faultOfAddress(row.address);
            !fault.isEmpty() && unusable.takesNext()) {
            unusable.add(adviceAbout(row, Texts::tr("Row %1: no server takes the address \"%2\": "
                                                    "%3.")
                                              .arg(row.number, row.address, fault)));
        }
        if (usesNames && row.name.trimmed().isEmpty() && nameless.takesNext()) {
            nameless.add(adviceAbout(
                row, Texts::tr("Row %1 has no name, and the message has a place for it: \"%2\".")
                         .arg(row.number, row.address)));
        }
    }

    QList<Finding> findings;
    const auto add = [&findings](Control control, const QString &text) {
        findings.append({Finding::Kind::Advice, text, control});
    };
    const bool startsAnew = form.runState() == RunState::Idle;
    if (recipients.count() > 0 && checked == 0)
        add(Control::lstDestinatari,
            Texts::tr("No recipient is checked: nobody gets the message."));
    if (startsAnew && mailed > 0) {
        add(Control::lstDestinatari,
            Texts::tr("%1 checked recipients have got the message, or may have: Start sends it to "
                      "them again.")
                .arg(mailed));
    }
    findings += twice.all(Texts::tr("%1 more rows hold an address for a second time."));
    // In a pause its row is in the list already.
    const auto *const control = firstOf.value(addressKey(form.text(Control::txtControl)));
    if (startsAnew && control != nullptr && !form.text(Control::txtControl).isEmpty()) {
        add(Control::txtControl,
            Texts::tr("The control address is in row %1 too, and would get the message twice.")
                .arg(control->number));
    }
    findings += unusable.all(Texts::tr("No server takes the addresses of %1 more rows."));
    findings += nameless.all(Texts::tr("%1 more rows have no name."));
    return findings;
}
