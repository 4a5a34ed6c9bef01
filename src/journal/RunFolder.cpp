#include "journal/RunFolder.h"

#include "base/modMain.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>

namespace {

const QLatin1String Ending(".run");

} // namespace

RunFolder::RunFolder(const QString &programFolder)
    : m_folder(systemPath(joinPath(programFolder, QStringLiteral("Runs"))))
{}

QStringList RunFolder::files() const
{
    const QDir folder(m_folder);
    QStringList files;
    // The names are times: the last is the newest.
    for (const QString &name :
         folder.entryList({u'*' + Ending}, QDir::Files, QDir::Name | QDir::Reversed))
        files.append(folder.filePath(name));
    return files;
}

QString RunFolder::newFile(qint64 moment) const
{
    const QDir folder(m_folder);
    folder.mkpath(QStringLiteral("."));
    const QString time = QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC)
                             .toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    QString name = time + Ending;
    for (int number = 2; folder.exists(name); ++number)
        name = time + u'_' + QString::number(number) + Ending; // behind the first in the order
    return folder.filePath(name);
}

QString RunFolder::standInFor(const QString &project) const
{
    QDir(m_folder).mkpath(QStringLiteral("."));
    const QByteArray mark =
        QCryptographicHash::hash(project.toUtf8(), QCryptographicHash::Sha256).toHex();
    constexpr int MarkLength = 16;
    return QDir(m_folder).filePath(QString::fromLatin1(mark.first(MarkLength)));
}

void RunFolder::remove(const QString &file)
{
    QFile::remove(file);
}
