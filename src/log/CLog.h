#pragma once

#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/RegionalFormats.h"

#include <QFile>
#include <QString>

/// The activity log: one file a calendar month, in the program's folder. Its texts are English
/// whatever the language of the window. Nothing here ever reports a failure: a log that cannot be
/// opened swallows what it is given, and a disk without room the lines that find none, whole.
class CLog
{
public:
    /// Opens the log of the present month, writes the separator of a session and the line that the
    /// program started. The month is taken once: a run that crosses its end stays in this file.
    CLog(const QString &programFolder, const Clock &clock, const RegionalFormats &formats,
         const CodePage &codePage);
    /// A log without a file, for commands that leave no trace.
    CLog(const Clock &clock, const RegionalFormats &formats, const CodePage &codePage);
    CLog(const CLog &) = delete;
    CLog &operator=(const CLog &) = delete;
    /// Writes that the program ended; an end of the process without it leaves the line out.
    ~CLog();

    /// Appends one line: date, time and Testo.
    void WriteMessage(const QString &Testo);
    /// Appends the whole log to txt.
    void GetLog(QString &txt);

private:
    void beginSession(const QByteArray &bytes);

    const Clock &m_clock;
    const RegionalFormats &m_formats;
    const CodePage &m_codePage;
    QFile m_file;
    qint64 m_stampedSecond = -1;
    QString m_stamp;
    QByteArray m_separator; ///< of the session, until its first line has found room
};
