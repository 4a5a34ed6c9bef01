#include "message/MessageSize.h"

#include "base/modMain.h"
#include "message/LinkedFiles.h"

#include <limits>

/// Counts in 32 bits: a sum that has once left them stays too large, whatever is added.
class MessageSize::ByteCount
{
public:
    void add(qint32 bytes)
    {
        m_sum += bytes;
        m_fits = m_fits && m_sum >= std::numeric_limits<qint32>::min() &&
                 m_sum <= std::numeric_limits<qint32>::max();
    }
    [[nodiscard]] bool fits() const { return m_fits; }
    [[nodiscard]] qint64 sum() const { return m_sum; }

private:
    qint64 m_sum = 0;
    bool m_fits = true;
};

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
    ByteCount size;
    if (const QString textPath = m_form.tag(Control::txtEmail); !textPath.isEmpty())
        size.add(FileSizeOf(textPath));
    if (const QString htmlPath = m_form.tag(Control::txtHTML); !htmlPath.isEmpty()) {
        size.add(FileSizeOf(htmlPath));
        if (!addLinkedFiles(htmlPath, size)) {
            return reportFailure(
                QCoreApplication::translate("Message",
                                            "A link in the HTML message has no closing quote: %1")
                    .arg(htmlPath));
        }
    }
    for (const QString &path : m_attachments.paths())
        size.add(FileSizeOf(path));
    if (!size.fits())
        return reportFailure(
            QCoreApplication::translate("Message", "The message is larger than 2 GB."));
    m_form.setText(Control::lblSize, sizeText(size.sum(), m_formats.decimalSign()));
    return true;
}

bool MessageSize::addLinkedFiles(const QString &htmlPath, ByteCount &size) const
{
    QString content;
    m_reader.LoadMessageFile(content, htmlPath, MessageKind::Html);
    const QString lower = lowerCaseInPlace(content);
    const QString folder = FolderOf(htmlPath);
    LinkSearch search = findLink(lower, 0);
    while (search.link) {
        const auto name = QStringView(content).sliced(search.link->start, search.link->length);
        size.add(FileSizeOf(findLinkedFile(folder, name)));
        search = findLink(lower, search.link->start + 1);
    }
    return !search.unclosed;
}

bool MessageSize::reportFailure(const QString &reason)
{
    m_prompts.notice({Icon::Critical, QCoreApplication::translate("Message", "Error"), reason});
    return false;
}
