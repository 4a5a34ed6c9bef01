#pragma once

#include "preflight/Finding.h"

#include <QList>

/// The findings of one rule: the first twenty, and then one that says how many more there are.
class CappedFindings
{
public:
    /// Whether the next finding is kept; one that is not needs no text.
    [[nodiscard]] bool takesNext() { return ++m_count <= Cap; }
    void add(const Finding &finding) { m_kept += finding; }

    /// What is kept. `more` says that there are %1 more.
    [[nodiscard]] QList<Finding> all(const QString &more) const
    {
        if (m_count <= Cap)
            return m_kept;
        Finding rest = m_kept.front();
        rest.text = more.arg(m_count - Cap);
        rest.row = 0;
        return m_kept + QList{rest};
    }

private:
    static constexpr qsizetype Cap = 20;

    QList<Finding> m_kept;
    qsizetype m_count = 0;
};
