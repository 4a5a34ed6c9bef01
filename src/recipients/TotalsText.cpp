#include "recipients/TotalsText.h"

// The number stands in the text as the language writes it; the count only chooses the form.

QString TotalsText::inDoubt(const Totals &totals) const
{
    return tr("%1 in doubt", "", totals.inDoubt).arg(number(totals.inDoubt));
}

QString TotalsText::problems(const Totals &totals) const
{
    QString text;
    if (totals.refused > 0)
        text +=
            QLatin1String(", ") + tr("%1 refused", "", totals.refused).arg(number(totals.refused));
    if (totals.inDoubt > 0)
        text += QLatin1String(", ") + inDoubt(totals);
    return text;
}

QString TotalsText::soFar(const Totals &totals) const
{
    return tr("%1 of %2 sent", "", totals.sent).arg(number(totals.sent), number(totals.rows)) +
           problems(totals);
}

QString TotalsText::atTheEnd(const Totals &totals) const
{
    return tr("%1 sent", "", totals.sent).arg(number(totals.sent)) + problems(totals);
}

QString TotalsText::earlier(int count) const
{
    return tr("%1 sent to in an earlier run", "", count).arg(number(count));
}

QString TotalsText::left(const Totals &totals) const
{
    return tr("%1 left", "", totals.waiting).arg(number(totals.waiting));
}

QString TotalsText::whole(const Totals &totals) const
{
    QString text = soFar(totals);
    if (totals.waiting > 0)
        text += QLatin1String(", ") + left(totals);
    return text;
}

QString TotalsText::unaccountedFor(const Totals &totals) const
{
    QStringList pieces;
    if (totals.inDoubt > 0)
        pieces += inDoubt(totals);
    if (totals.waiting > 0)
        pieces += left(totals);
    return pieces.join(QLatin1String(", "));
}
