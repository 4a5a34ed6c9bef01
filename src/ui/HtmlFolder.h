#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QSet>
#include <QSize>
#include <QString>

#include <utility>

class QIODevice;

/// What an HTML text may use: the pictures and style sheets in the folder of its file and below.
/// Nothing else is read, and nothing ever comes from the network.
class HtmlFolder
{
public:
    /// A picture that cannot be shown has an empty size.
    struct Picture
    {
        QSize size;     ///< the size it says it has
        QPixmap pixmap; ///< may be smaller
    };

    explicit HtmlFolder(const QString &path) : m_path(path) {}

    /// The picture behind a link, read once. Pictures that together are too large to be decoded
    /// quickly are left out. `base` is the folder of the style sheet that holds the link.
    Picture picture(const QString &link, const QString &base);
    /// The text of a style sheet, the first time it is asked for. Empty when there is none.
    QByteArray styleSheet(const QString &link, const QString &base);

private:
    [[nodiscard]] QString find(const QString &link, const QString &base) const;
    Picture read(const QString &link, const QString &base);
    Picture decode(QIODevice &file);

    QString m_path;
    QHash<std::pair<QString, QString>, Picture> m_pictures;
    QSet<QString> m_styleSheets;
    qint64 m_pixelsLeft = 64'000'000; // of all pictures together
};
