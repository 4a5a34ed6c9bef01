#pragma once

#include "smtp/client/Content.h"

#include <QDateTime>
#include <QHash>
#include <QString>

#include <tl/expected.hpp>

/// A file as a part of messages, encoded once.
struct FilePart
{
    QByteArray headers; ///< the header lines, without the blank line after them
    Segment body;

    /// Reads the file. `disposition`: "attachment" or "inline". The error names the file.
    [[nodiscard]] static tl::expected<FilePart, QString> read(const QString &path,
                                                              const QByteArray &disposition);
};

/// The attachments of the message before, so that a file is read and encoded again only when its
/// size or its time has changed.
class AttachmentStore
{
public:
    /// The parts for these files, in their order, or why one of them cannot be sent. All others are
    /// forgotten.
    [[nodiscard]] tl::expected<QList<FilePart>, QString> take(const QStringList &paths);

private:
    struct Kept
    {
        qint64 size = 0;
        qint64 changed = 0; ///< milliseconds
        FilePart part;
    };

    QHash<QString, Kept> m_kept;
};
