#include "base/Numbers.h"

#include <algorithm>

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

struct Scanned
{
    std::optional<qint64> value; // nothing when there was no digit
    QStringView rest;
};

// Blanks, a sign, digits. Values beyond 17 digits are held at the edge: no range that is asked for
// reaches so far, and one more digit still fits.
Scanned scanNumber(QStringView text)
{
    constexpr qint64 Edge = 100'000'000'000'000'000;
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    bool negative = false;
    if (text.startsWith(u'-') || text.startsWith(u'+')) {
        negative = text.front() == u'-';
        text = text.sliced(1);
    }
    if (text.isEmpty() || !isDigit(text.front()))
        return {std::nullopt, text};
    qint64 value = 0;
    for (; !text.isEmpty() && isDigit(text.front()); text = text.sliced(1))
        value = std::min(Edge, value * 10 + (text.front().unicode() - u'0'));
    return {negative ? -value : value, text};
}

} // namespace

std::optional<qint64> wholeNumber(QStringView text, qint64 lowest, qint64 highest)
{
    Scanned scanned = scanNumber(text);
    if (!std::all_of(scanned.rest.begin(), scanned.rest.end(), isBlank))
        return std::nullopt;
    if (!scanned.value || *scanned.value < lowest || *scanned.value > highest)
        return std::nullopt;
    return scanned.value;
}

qint32 leadingNumber(QStringView text)
{
    const qint64 value = scanNumber(text).value.value_or(0);
    return static_cast<qint32>(std::clamp<qint64>(value, std::numeric_limits<qint32>::min(),
                                                  std::numeric_limits<qint32>::max()));
}

QString fileNumber(qint64 number)
{
    const QString digits = QString::number(number) + u' ';
    return number < 0 ? digits : u' ' + digits;
}
