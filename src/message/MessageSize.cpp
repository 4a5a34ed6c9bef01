#include "message/MessageSize.h"

#include "base/modMain.h"
#include "message/LinkedFiles.h"

#include <limits>

QString sizeText(qint64 bytes, QChar decimalSign)
{
    constexpr qint64 BytesPerKilobyte = 1024;
    constexpr qint64 Hundred = 100;
    const qint64 magnitude = std::abs(bytes);
    const qint64 hundredths = (2 * magnitude * Hundred + BytesPerKilobyte) / (2 * BytesPerKilobyte);
    const QString sign = bytes < 0 && hundredths > 0 ? QStringLiteral("-") : QString();
    return sign + QString::number(hundredths / Hundred) + decimalSign +
           QStringLiteral("%1").arg(hundredths % Hundred, 2, 10, QLatin1Char('0')) +
           QLatin1String(" KB");
}

MessageSize::MessageSize(Form &form, const Attachments &attachments, const MessageReader &reader,
                         Prompts &prompts, const RegionalFormats &formats)
    : m_form(form),
      m_attachments(attachments),
      m_reader(reader),
      m_prompts(prompts),
      m_formats(formats)
{}

bool MessageSize::UpdateMessageSize()
{
    qint64 size = 0;
    if (const QString textPath = m_form.tag(Control::txtEmail); !textPath.isEmpty())
        size = FileSizeOf(textPath);
    if (const QString htmlPath = m_form.tag(Control::txtHTML); !htmlPath.isEmpty()) {
        size += FileSizeOf(htmlPath);
        const auto linked = linkedFilesSize(htmlPath);
        if (!linked) {
            return reportFailure(
                QCoreApplication::translate("Message",
                                            "A link in the HTML message has no closing quote: %1")
                    .arg(htmlPath));
        }
        size += *linked;
    }
    for (const QString &path : m_attachments.paths())
        size += FileSizeOf(path);
    if (size > std::numeric_limits<qint32>::max())
        return reportFailure(
            QCoreApplication::translate("Message", "The message is larger than 2 GB."));
    m_form.setText(Control::lblSize, sizeText(size, m_formats.decimalSign()));
    return true;
}

std::optional<qint64> MessageSize::linkedFilesSize(const QString &htmlPath) const
{
    QString content;
    m_reader.LoadMessageFile(content, htmlPath, MessageKind::Html);
    content = lowerCaseInPlace(content);
    const QString folder = FolderOf(htmlPath);
    qint64 size = 0;
    for (LinkSearch search = findLink(content, 0); search.link || search.unclosed;
         search = findLink(content, search.link->start + 1)) {
        if (search.unclosed)
            return std::nullopt;
        const auto name = QStringView(content).sliced(search.link->start, search.link->length);
        size += FileSizeOf(findLinkedFile(folder, name));
    }
    return size;
}

bool MessageSize::reportFailure(const QString &reason)
{
    m_prompts.notice({Icon::Critical, QCoreApplication::translate("Message", "Error"), reason});
    return false;
}
