#include "base/InputFields.h"

#include "base/Lines.h"

#include <algorithm>

QStringView InputFields::takeUntil(bool stopsAtComma)
{
    const auto end = std::find_if(m_rest.begin(), m_rest.end(), [stopsAtComma](QChar c) {
        return c == u'\r' || c == u'\n' || (stopsAtComma && c == u',');
    });
    const QStringView taken = m_rest.first(end - m_rest.begin());
    m_rest = m_rest.sliced(taken.size());
    m_cut = m_rest.isEmpty();
    if (!m_cut)
        m_rest = m_rest.sliced(m_rest.front() == u',' ? 1 : lineEndLength(m_rest));
    return taken;
}

std::optional<QString> InputFields::field()
{
    if (m_rest.isEmpty())
        return std::nullopt;
    while (m_rest.startsWith(u' '))
        m_rest = m_rest.sliced(1);
    if (!m_rest.startsWith(u'"'))
        return takeUntil(true).toString();
    const qsizetype close = m_rest.indexOf(u'"', 1);
    if (close < 0) {
        m_rest = {};
        m_cut = true;
        return std::nullopt;
    }
    const QString quoted = m_rest.sliced(1, close - 1).toString();
    m_rest = m_rest.sliced(close + 1);
    takeUntil(true);
    return quoted;
}

std::optional<QString> InputFields::wholeLine()
{
    if (m_rest.isEmpty())
        return std::nullopt;
    return takeUntil(false).toString();
}
