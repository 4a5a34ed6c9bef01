#include "sending/MomentTexts.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr qint64 MicrosecondsPerSecond = 1'000'000;

} // namespace

QString messageIdentifier(const QString &time, const QString &date, const QString &computer)
{
    return QString(time).remove(u'.') + QString(date).remove(u'/') + u'@' + computer;
}

MomentTexts::MomentTexts(const Clock &clock, const QString &computer)
    : m_clock(clock), m_computer(computer)
{}

QString MomentTexts::dateText()
{
    const qint64 second = m_clock.microseconds() / MicrosecondsPerSecond;
    if (second != m_dateSecond) {
        m_dateText =
            QLocale::c().toString(m_clock.now(), QStringLiteral("ddd, dd MMM yyyy HH:mm:ss"));
        m_dateSecond = second;
    }
    return m_dateText;
}

QString MomentTexts::nextIdentifier()
{
    m_lastMicrosecond = std::max(m_clock.microseconds(), m_lastMicrosecond + 1);
    const qint64 second = m_lastMicrosecond / MicrosecondsPerSecond;
    if (second != m_identifierSecond) {
        const QDateTime moment = QDateTime::fromSecsSinceEpoch(second, Qt::UTC);
        m_timeOfSecond = moment.toString(QStringLiteral("HH.mm.ss."));
        m_dateOfSecond = moment.toString(QStringLiteral("dd/MM/yyyy"));
        m_identifierSecond = second;
    }
    constexpr int Digits = 6;
    const QString fraction =
        QString::number(m_lastMicrosecond % MicrosecondsPerSecond).rightJustified(Digits, u'0');
    return messageIdentifier(m_timeOfSecond + fraction, m_dateOfSecond, m_computer);
}
