#include "base/RegionalFormats.h"

#include <QLocale>

#include <array>
#include <clocale>
#include <ctime>

namespace {

// The C library's %x and %X, not Qt's short format: the latter cuts years to two digits in many
// locales, Italian among them.
QString formatted(const char *format, const QDateTime &moment)
{
    std::tm parts{};
    parts.tm_year = moment.date().year() - 1900;
    parts.tm_mon = moment.date().month() - 1;
    parts.tm_mday = moment.date().day();
    parts.tm_wday = moment.date().dayOfWeek() % 7;
    parts.tm_yday = moment.date().dayOfYear() - 1;
    parts.tm_hour = moment.time().hour();
    parts.tm_min = moment.time().minute();
    parts.tm_sec = moment.time().second();
    parts.tm_isdst = -1;
    std::array<char, 128> buffer{};
    const std::size_t length = std::strftime(buffer.data(), buffer.size(), format, &parts);
    return QString::fromLocal8Bit(QByteArrayView(buffer.data(), static_cast<qsizetype>(length)));
}

} // namespace

SystemFormats::SystemFormats()
{
    const QByteArrayView locale = std::setlocale(LC_TIME, nullptr);
    m_isPlain = locale == "C" || locale == "POSIX" || locale.startsWith("C.");
    if (!m_isPlain)
        m_decimalSign = QLocale::system().decimalPoint().front();
}

QString SystemFormats::shortDate(const QDateTime &moment) const
{
    return m_isPlain ? moment.toString(QStringLiteral("dd/MM/yyyy")) : formatted("%x", moment);
}

QString SystemFormats::longTime(const QDateTime &moment) const
{
    return m_isPlain ? moment.toString(QStringLiteral("HH:mm:ss")) : formatted("%X", moment);
}
