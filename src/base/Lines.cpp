#include "base/Lines.h"

#include <algorithm>

namespace {

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

} // namespace

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
    const auto end = std::find_if(m_rest.begin(), m_rest.end(), isLineEnd);
    const QStringView line = m_rest.first(end - m_rest.begin());
    m_rest = m_rest.sliced(line.size());
    m_rest = m_rest.sliced(lineEndLength(m_rest));
    return line;
}

QString oneLine(QString text)
{
    // Nearly every text is one line already; a list as long as it can be asks 200,000 times.
    if (std::none_of(text.cbegin(), text.cend(), isLineEnd))
        return text;
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}

QString withVisibleControls(QStringView text)
{
    QString visible;
    visible.reserve(text.size());
    for (const QChar c : text) {
        switch (c.category()) {
        case QChar::Other_Control:
            visible += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QChar(u'0'));
            break;
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            visible += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QChar(u'0'));
            break;
        default:
            visible += c;
        }
    }
    return visible;
}
