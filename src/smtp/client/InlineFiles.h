#pragma once

#include "smtp/client/FilePart.h"

#include <QList>
#include <QString>

/// The files that the HTML body shows in its text.
class InlineFiles
{
public:
    struct File
    {
        QByteArray contentId;
        FilePart part;
    };

    /// The files taken from now on are a new set; the present one stays until then.
    void beginNewSet() { m_isOld = true; }
    /// Reads the file at once. Returns what the HTML must say in place of its name ("cid:" and its
    /// content identifier, RFC 2392); empty when the file cannot be read.
    [[nodiscard]] QString add(const QString &path);
    /// The files that this HTML refers to.
    [[nodiscard]] QList<File> usedIn(const QString &html) const;

private:
    QList<File> m_files;
    bool m_isOld = false;
};
