#include "support/LogReader.h"

#include <QDir>
#include <QFile>
#include <QTest>

QStringList messagesOfLog(const QString &folder)
{
    const QStringList logs = QDir(folder).entryList({QStringLiteral("*.log")});
    if (logs.size() != 1) {
        QTest::qFail("there is not exactly one log", __FILE__, __LINE__);
        return {};
    }
    QFile file(QDir(folder).filePath(logs.front()));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("the log cannot be read", __FILE__, __LINE__);
    QStringList messages;
    const QStringList lines = QString::fromLatin1(file.readAll()).split(QStringLiteral("\r\n"));
    for (const QString &line : lines) {
        const qsizetype stampEnd = line.indexOf(QStringLiteral("  "));
        if (stampEnd < 0)
            continue;
        const QString message = line.mid(stampEnd + 2);
        if (message != QStringLiteral("Program started..."))
            messages.append(message);
    }
    return messages;
}
