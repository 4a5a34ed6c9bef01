#include "smtp/client/MimeBody.h"

#include <QUuid>

#include <utility>

MimeBody::Multipart::Multipart(const QByteArray &subtype)
{
    // 128 random bits stand in no text by chance; "=_" stands in no quoted-printable or base64
    // line, and a boundary of digits alone is taken for spam.
    const QByteArray boundary = "=_" + QUuid::createUuid().toByteArray(QUuid::Id128);
    headers = "Content-Type: multipart/" + subtype + "; boundary=\"" + boundary + "\"\r\n\r\n";
    // RFC 2046, section 5.1.1: the line end before a boundary belongs to the boundary.
    between = "\r\n--" + boundary + "\r\n";
    end = "\r\n--" + boundary + "--\r\n";
}

MimeBody::MimeBody()
    : m_mixed("mixed"),
      m_alternative("alternative"),
      m_related("related"),
      m_text("plain"),
      m_html("html")
{}

tl::expected<void, QString> MimeBody::set(const QString &text, const QString &html,
                                          const QStringList &attachments)
{
    auto files = m_store.take(attachments);
    if (!files)
        return tl::unexpected(files.error());
    m_attachments = *std::move(files);
    m_text.setText(text);
    m_hasHtml = !html.isEmpty();
    if (m_hasHtml) {
        m_html.setText(html);
        m_pictures = inlineFiles.usedIn(html);
    }
    return {};
}

void MimeBody::writeTo(ContentWriter &writer) const
{
    if (m_attachments.isEmpty()) {
        writeLetter(writer);
        return;
    }
    writer << m_mixed.headers << m_mixed.between;
    writeLetter(writer);
    for (const FilePart &file : m_attachments) {
        writer << m_mixed.between;
        write(writer, file);
    }
    writer << m_mixed.end;
}

void MimeBody::writeLetter(ContentWriter &writer) const
{
    if (!m_hasHtml) {
        write(writer, m_text);
        return;
    }
    writer << m_alternative.headers << m_alternative.between;
    write(writer, m_text);
    writer << m_alternative.between;
    writeHtml(writer);
    writer << m_alternative.end;
}

void MimeBody::writeHtml(ContentWriter &writer) const
{
    if (m_pictures.isEmpty()) {
        write(writer, m_html);
        return;
    }
    writer << m_related.headers << m_related.between;
    write(writer, m_html);
    for (const InlineFiles::File &picture : m_pictures) {
        writer << m_related.between;
        write(writer, picture.part);
    }
    writer << m_related.end;
}

void MimeBody::write(ContentWriter &writer, const TextPart &part)
{
    writer << part.headers() << part.body();
}

void MimeBody::write(ContentWriter &writer, const FilePart &part)
{
    writer << part.headers << "\r\n" << part.body;
}
