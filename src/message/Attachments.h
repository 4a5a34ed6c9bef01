#pragma once

#include <QObject>
#include <QStringList>

/// The attachments of a project: full paths, in the order of adding; one may stand there twice.
class Attachments : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] const QStringList &paths() const { return m_paths; }
    /// How the list shows a path.
    [[nodiscard]] static QString shownText(const QString &path);

    void replaceAll(const QStringList &paths);
    void add(const QString &path);
    void removeAt(int index);

Q_SIGNALS:
    void changed();
    /// One was added at the end; comes behind changed().
    void added();

private:
    QStringList m_paths;
};
