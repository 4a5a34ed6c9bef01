#include "message/Attachments.h"

#include "base/modMain.h"

QString Attachments::shownText(const QString &path)
{
    constexpr qint16 ShownWidth = 50;
    return Wrap(path, ShownWidth);
}

void Attachments::replaceAll(const QStringList &paths)
{
    m_paths = paths;
    Q_EMIT changed();
}

void Attachments::add(const QString &path)
{
    m_paths.append(path);
    Q_EMIT changed();
    Q_EMIT added();
}

void Attachments::removeAt(int index)
{
    m_paths.removeAt(index);
    Q_EMIT changed();
}
