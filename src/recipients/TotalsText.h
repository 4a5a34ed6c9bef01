#pragma once

#include "base/Language.h"
#include "recipients/Totals.h"

#include <QCoreApplication>
#include <QLocale>

/// Totals in words, with the numbers as the language writes them.
class TotalsText
{
    Q_DECLARE_TR_FUNCTIONS(TotalsText)

public:
    explicit TotalsText(Language language) : m_locale(localeOf(language)) {}

    /// "578 of 1,450 sent, 3 refused, 2 in doubt"; what is none is left out, but for those sent.
    [[nodiscard]] QString soFar(const Totals &totals) const;
    /// "1,441 sent, 9 refused": when nobody is left.
    [[nodiscard]] QString atTheEnd(const Totals &totals) const;
    /// "867 sent to in an earlier run": to whom the present one has not come.
    [[nodiscard]] QString earlier(int count) const;
    /// "867 left"
    [[nodiscard]] QString left(const Totals &totals) const;
    /// "578 of 1,450 sent, 3 refused, 2 in doubt, 867 left": of a run, wherever it stands.
    [[nodiscard]] QString whole(const Totals &totals) const;
    /// "2 in doubt, 867 left": those of whom nobody can say yet that they got the message, or that
    /// they did not; empty when there are none.
    [[nodiscard]] QString unaccountedFor(const Totals &totals) const;

private:
    [[nodiscard]] QString inDoubt(const Totals &totals) const;
    [[nodiscard]] QString problems(const Totals &totals) const;
    [[nodiscard]] QString number(int count) const { return m_locale.toString(count); }

    QLocale m_locale;
};
