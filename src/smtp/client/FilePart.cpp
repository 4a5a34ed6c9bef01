#include "smtp/client/FilePart.h"

#include "base/Files.h"
#include "smtp/client/MimeEncoding.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The type under which the file travels. RFC 2045, section 6.4: messages and multiparts cannot be
/// base64, so they travel as mere bytes; so does what has no type of its own.
QByteArray typeOf(const QString &fileName, const QByteArray &content)
{
    const QString type = QMimeDatabase().mimeTypeForFileNameAndData(fileName, content).name();
    const bool isMere = type.startsWith("message/"_L1) || type.startsWith("multipart/"_L1) ||
                        type.startsWith("inode/"_L1) || type == "application/x-zerosize"_L1;
    return isMere ? "application/octet-stream"_qba : type.toLatin1();
}

} // namespace

tl::expected<FilePart, QString> FilePart::read(const QString &path, const QByteArray &disposition)
{
    const auto content = readWholeFile(path);
    if (!content)
        return tl::unexpected(content.error().toText());
    const QString name = QFileInfo(systemPath(path)).fileName();
    return FilePart{fileHeaders(typeOf(name, *content), disposition, name),
                    {base64Lines(*content), true}};
}

tl::expected<QList<FilePart>, QString> AttachmentStore::take(const QStringList &paths)
{
    QList<FilePart> parts;
    QHash<QString, Kept> before = std::exchange(m_kept, {});
    for (const QString &path : paths) {
        const QFileInfo info(systemPath(path));
        Kept kept = before.value(path);
        const qint64 changed = info.lastModified().toMSecsSinceEpoch();
        if (kept.part.headers.isEmpty() || !info.isFile() || kept.size != info.size() ||
            kept.changed != changed) {
            auto part = FilePart::read(path, "attachment"_qba);
            if (!part)
                return tl::unexpected(part.error());
            kept = {info.size(), changed, *std::move(part)};
        }
        parts += kept.part;
        m_kept.insert(path, kept);
    }
    return parts;
}
