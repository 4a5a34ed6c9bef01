#pragma once

#include "smtp/client/FilePart.h"
#include "smtp/client/InlineFiles.h"
#include "smtp/client/TextPart.h"

/// Everything of a message from its Content-Type on: multipart/mixed (only with attachments) of
/// multipart/alternative (only with HTML) of the text and multipart/related (only with inline
/// files) of the HTML and its pictures. What the next message has too is not encoded again.
class MimeBody
{
public:
    MimeBody();

    InlineFiles inlineFiles;

    /// The next message's texts and files; no HTML part when `html` is empty. The error, one line,
    /// says which attachment cannot be sent and why.
    [[nodiscard]] tl::expected<void, QString> set(const QString &text, const QString &html,
                                                  const QStringList &attachments);
    /// Writes the message behind the header lines that are there already.
    void writeTo(ContentWriter &writer) const;

private:
    /// A multipart: its header lines and its boundary lines.
    struct Multipart
    {
        explicit Multipart(const QByteArray &subtype);

        QByteArray headers; ///< with the blank line
        QByteArray between; ///< before each part
        QByteArray end;
    };

    void writeLetter(ContentWriter &writer) const;
    void writeHtml(ContentWriter &writer) const;
    static void write(ContentWriter &writer, const TextPart &part);
    static void write(ContentWriter &writer, const FilePart &part);

    // The boundaries are as old as this object: messages differ in their texts only.
    const Multipart m_mixed;
    const Multipart m_alternative;
    const Multipart m_related;
    TextPart m_text;
    TextPart m_html;
    bool m_hasHtml = false;
    AttachmentStore m_store;
    QList<FilePart> m_attachments;
    QList<InlineFiles::File> m_pictures;
};
