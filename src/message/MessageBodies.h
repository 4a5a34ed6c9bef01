#pragma once

#include "form/Form.h"
#include "message/MessageReader.h"
#include "smtp/Smtp.h"

/// The message as it is loaded for a run: both bodies, and the pictures that the HTML links to,
/// copied into the working folder and handed to the client.
class MessageBodies
{
public:
    MessageBodies(const Form &form, const MessageReader &reader, Smtp &SMTP,
                  const QString &programFolder);

    /// Loads the text message. False when there is one and it cannot be read.
    bool LoadTextBody();
    /// Loads the HTML message and stages its pictures. It goes by the text shown in the box, not
    /// by the path behind it: a text typed there without a file fails, a file whose text was
    /// emptied is not loaded.
    bool LoadHtmlBody();
    void empty();
    /// Loads both anew without a box or a line in the log. The error is the first file that cannot
    /// be read.
    [[nodiscard]] tl::expected<void, FileError> loadSilently();
    /// The box of a message that cannot be loaded.
    void reportUnreadable(const QString &detail) const { m_reader.reportUnreadable(detail); }
    [[nodiscard]] QString textBody() const { return m_textBody; }
    [[nodiscard]] QString htmlBody() const { return m_htmlBody; }

    /// Whether every link names an existing file below the HTML file's folder. Reads the file, and
    /// so writes its line to the log.
    [[nodiscard]] bool CheckLinkedImages(const QString &htmlPath) const;
    /// Deletes the files of the working folder in one pass; one that cannot be deleted stays.
    void emptyWorkingFolder() const;

private:
    // Which file is loaded, and what comes of it; `read` takes content, path and kind.
    template <typename Read>
    bool loadText(const Read &read);
    template <typename Read>
    bool loadHtml(const Read &read);
    void StageLinkedImages();
    QString stage(const QString &source, const QString &name);
    [[nodiscard]] QString workingFolder() const;

    const Form &m_form;
    const MessageReader &m_reader;
    Smtp &m_SMTP;
    QString m_programFolder;
    QString m_textBody;
    QString m_htmlBody;
};
