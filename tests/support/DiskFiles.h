#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

/// Makes a file of that content, in the place of one that was there.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        QTest::qFail("the file cannot be written", __FILE__, __LINE__);
}

/// The content of a file that must exist.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("the file cannot be read", __FILE__, __LINE__);
    return file.readAll();
}

/// Makes a file of that size that takes no room on the disk.
inline void makeSparseFile(const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
        QTest::qFail("the file cannot be made", __FILE__, __LINE__);
}
