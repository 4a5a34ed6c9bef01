#include "ui/HtmlFolder.h"

#include "message/LinkedFiles.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MaxPixelsKept = 4'000'000;
constexpr qint64 MaxStyleSheet = 256 * 1024;

// Not SVG, which is a program that may read other files.
bool isPlainPicture(const QByteArray &format)
{
    static const QSet<QByteArray> formats{"png", "jpeg", "gif", "bmp", "webp", "ico"};
    return formats.contains(format);
}

// The bytes of a link that holds the picture itself.
QByteArray bytesInside(const QString &link)
{
    static const QString mark = u";base64,"_s;
    const qsizetype at = link.indexOf(mark);
    if (!link.startsWith("data:image/"_L1, Qt::CaseInsensitive) || at < 0)
        return {};
    return QByteArray::fromBase64(link.sliced(at + mark.size()).toLatin1());
}

qint64 pixelsOf(QSize size)
{
    return qint64{size.width()} * size.height();
}

} // namespace

QString HtmlFolder::find(const QString &link, const QString &base) const
{
    static const QRegularExpression elsewhere(u"^([A-Za-z][A-Za-z0-9+.-]*:|[/\\\\])"_s);
    return elsewhere.match(link).hasMatch() ? QString() : findLinkedFile(m_path, base + link);
}

HtmlFolder::Picture HtmlFolder::picture(const QString &link, const QString &base)
{
    const std::pair key(link, base);
    auto found = m_pictures.constFind(key);
    if (found == m_pictures.constEnd())
        found = m_pictures.insert(key, read(link, base));
    return *found;
}

HtmlFolder::Picture HtmlFolder::read(const QString &link, const QString &base)
{
    QByteArray inside = bytesInside(link);
    if (!inside.isEmpty()) {
        QBuffer buffer(&inside);
        return buffer.open(QIODevice::ReadOnly) ? decode(buffer) : Picture();
    }
    const QString path = find(link, base);
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? decode(file) : Picture();
}

HtmlFolder::Picture HtmlFolder::decode(QIODevice &file)
{
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // A file of a few bytes can declare a picture that fills the memory.
    if (!isPlainPicture(reader.format()) || size.isEmpty() || pixelsOf(size) > m_pixelsLeft)
        return {};
    m_pixelsLeft -= pixelsOf(size);
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    if (pixelsOf(size) > MaxPixelsKept) {
        const double scale = std::sqrt(double(MaxPixelsKept) / double(pixelsOf(size)));
        reader.setScaledSize((QSizeF(size) * scale).toSize().expandedTo({1, 1}));
    }
    const QPixmap pixmap = QPixmap::fromImageReader(&reader);
    if (pixmap.isNull())
        return {};
    return {isTurned ? size.transposed() : size, pixmap};
}

QByteArray HtmlFolder::styleSheet(const QString &link, const QString &base)
{
    const QString path = find(link, base);
    // A second time it may be one that imports itself.
    if (path.isEmpty() || m_styleSheets.contains(path))
        return {};
    m_styleSheets.insert(path);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(MaxStyleSheet) : QByteArray();
}
