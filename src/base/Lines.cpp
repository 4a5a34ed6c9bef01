#include "base/Lines.h"

#include <algorithm>

int lineEndLength(QStringView text)
{
    if (text.startsWith(u"\r\n"))
        return 2;
    return text.startsWith(u'\r') || text.startsWith(u'\n') ? 1 : 0;
}

std::optional<QStringView> LineReader::next()
{
    if (m_rest.isEmpty())
        return std::nullopt;
    const auto end = std::find_if(m_rest.begin(), m_rest.end(),
                                  [](QChar c) { return c == u'\r' || c == u'\n'; });
    const QStringView line = m_rest.first(end - m_rest.begin());
    m_rest = m_rest.sliced(line.size());
    m_rest = m_rest.sliced(lineEndLength(m_rest));
    return line;
}

QString oneLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}
