#include "preflight/HtmlWords.h"

namespace {

// The place behind the next `end`, or the end of the text.
qsizetype behind(QStringView html, QLatin1String end, qsizetype from)
{
    const qsizetype at = html.indexOf(end, from, Qt::CaseInsensitive);
    return at < 0 ? html.size() : at + end.size();
}

// Where reading goes on behind the tag that begins there.
qsizetype behindTag(QStringView html, qsizetype start)
{
    const QStringView tag = html.sliced(start);
    if (tag.startsWith(QLatin1String("<!--")))
        return behind(html, QLatin1String("-->"), start);
    qsizetype end = start;
    if (tag.startsWith(QLatin1String("<style"), Qt::CaseInsensitive))
        end = behind(html, QLatin1String("</style"), start);
    else if (tag.startsWith(QLatin1String("<script"), Qt::CaseInsensitive))
        end = behind(html, QLatin1String("</script"), start);
    else if (tag.startsWith(QLatin1String("<title"), Qt::CaseInsensitive))
        end = behind(html, QLatin1String("</title"), start);
    return behind(html, QLatin1String(">"), end);
}

} // namespace

QString wordsOfHtml(QStringView html)
{
    QString words;
    qsizetype at = 0;
    while (at < html.size()) {
        const qsizetype tag = html.indexOf(u'<', at);
        const qsizetype end = tag < 0 ? html.size() : tag;
        words += html.sliced(at, end - at);
        words += u' ';
        at = tag < 0 ? end : behindTag(html, tag);
    }
    return words.replace(QLatin1String("&nbsp;"), QLatin1String(" "), Qt::CaseInsensitive)
        .simplified();
}

bool hasPicture(QStringView html)
{
    return html.contains(QLatin1String("<img"), Qt::CaseInsensitive);
}
