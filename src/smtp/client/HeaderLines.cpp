#include "smtp/client/HeaderLines.h"

#include "smtp/client/MimeEncoding.h"

#include <QList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// RFC 5322, section 2.1.1
constexpr qsizetype LongestLine = 998;

/// RFC 5322, section 2.2: printable ASCII without the colon.
bool isFieldName(QStringView name)
{
    return !name.isEmpty() &&
           std::ranges::all_of(name, [](QChar c) { return c > u' ' && c < u'\x7f'; });
}

bool isWrittenByClient(QStringView name)
{
    static constexpr std::array Names = {
        "From"_L1,         "To"_L1,       "Cc"_L1,
        "Bcc"_L1,          "Subject"_L1,  "Date"_L1,
        "MIME-Version"_L1, "X-Mailer"_L1, "Disposition-Notification-To"_L1};
    return name.startsWith(u"Content-", Qt::CaseInsensitive) ||
           std::ranges::any_of(Names, [name](QLatin1StringView own) {
               return name.compare(own, Qt::CaseInsensitive) == 0;
           });
}

bool standsAsItIs(QStringView line)
{
    return line.size() <= LongestLine && std::ranges::all_of(line, [](QChar c) {
               return (c >= u' ' && c < u'\x7f') || c == u'\t';
           });
}

} // namespace

QByteArray safeHeaderLines(const QString &lines)
{
    QByteArray result;
    bool isTaken = false; // a line that begins with a blank goes on with the field before it
    for (const QStringView line : QStringView(lines).split(u"\r\n")) {
        if (line.trimmed().isEmpty())
            continue;
        const bool goesOn = line.front() == u' ' || line.front() == u'\t';
        const QStringView name = line.left(line.indexOf(u':'));
        if (!goesOn)
            isTaken = line.contains(u':') && isFieldName(name) && !isWrittenByClient(name);
        if (!isTaken)
            continue;
        if (standsAsItIs(line))
            result += line.toLatin1() + "\r\n";
        else if (goesOn)
            result += textHeader({}, line.toString()).mid(1);
        else
            result += textHeader(name.toLatin1(), line.sliced(name.size() + 1).toString());
    }
    return result;
}
