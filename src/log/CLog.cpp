#include "log/CLog.h"

#include "base/AppendedFile.h"
#include "base/modMain.h"

namespace {

constexpr int SeparatorLength = 50;

} // namespace

CLog::CLog(const Clock &clock, const RegionalFormats &formats, const CodePage &codePage)
    : m_clock(clock), m_formats(formats), m_codePage(codePage)
{}

CLog::CLog(const QString &programFolder, const Clock &clock, const RegionalFormats &formats,
           const CodePage &codePage)
    : CLog(clock, formats, codePage)
{
    const QString name = m_clock.now().toString(QStringLiteral("MM-yyyy")) + QLatin1String(".log");
    m_file.setFileName(systemPath(joinPath(programFolder, name)));
    // Without a buffer of our own: when a line reaches the disk is the system's affair, but a
    // program that dies has handed over every line.
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return;
    m_file.seek(m_file.size());
    m_separator = "\r\n" + QByteArray(SeparatorLength, '-') + "\r\n";
    WriteMessage(QStringLiteral("Program started..."));
}

CLog::~CLog()
{
    WriteMessage(QStringLiteral("Program ended..."));
}

void CLog::WriteMessage(const QString &Testo)
{
    if (!m_file.isOpen())
        return;
    constexpr qint64 MicrosecondsPerSecond = 1'000'000;
    const qint64 second = m_clock.microseconds() / MicrosecondsPerSecond;
    if (second != m_stampedSecond) {
        const QDateTime now = m_clock.now();
        m_stamp = m_formats.shortDate(now) + u' ' + m_formats.longTime(now) + QLatin1String("  ");
        m_stampedSecond = second;
    }
    const QString entry = m_stamp + Testo + QLatin1String("\r\n");
    // Each line is encoded by itself: one beyond the code page leaves the others in it.
    QByteArray bytes;
    for (qsizetype start = 0; start < entry.size();) {
        const qsizetype end = entry.indexOf(u'\n', start) + 1;
        bytes += m_codePage.encode(entry.sliced(start, end - start));
        start = end;
    }
    if (m_separator.isEmpty())
        static_cast<void>(appendWhole(m_file, bytes));
    else
        beginSession(bytes);
}

// The session begins ON the last byte of the one before, not behind it: its CR takes the place of
// the earlier LF, so that sessions are set apart by CR CR LF. Readers of these files count on it.
// In an empty file there is no such byte. Where there is one it is overwritten last, when all the
// rest has found room.
void CLog::beginSession(const QByteArray &bytes)
{
    const qint64 end = m_file.pos();
    const qsizetype ownByte = end == 0 ? 0 : 1;
    if (!appendWhole(m_file, m_separator.sliced(ownByte) + bytes))
        return;
    if (end > 0) {
        m_file.seek(end - 1);
        m_file.write(m_separator.first(ownByte));
        m_file.seek(m_file.size());
    }
    m_separator.clear();
}

void CLog::GetLog(QString &txt)
{
    if (!m_file.isOpen())
        return;
    const qint64 writePosition = m_file.pos();
    m_file.seek(0);
    const QByteArray content = m_file.readAll();
    m_file.seek(writePosition);
    // Lines are encoded one by one, so they are decoded one by one.
    for (qsizetype start = 0; start < content.size();) {
        qsizetype end = content.indexOf('\n', start);
        end = end < 0 ? content.size() : end + 1;
        txt += m_codePage.decode(QByteArrayView(content).sliced(start, end - start));
        start = end;
    }
}
