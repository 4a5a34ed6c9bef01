#include "project/ProjectData.h"

#include "base/InputFields.h"
#include "base/Lines.h"
#include "base/Numbers.h"

#include <optional>

namespace {

const QLatin1String FormatTag("v2.0");
const QLatin1String LineEnd("\r\n");
constexpr int ReservedLines = 4;

// Collects fields and remembers whether one was missing, so that a header reads as a list.
class HeaderReader
{
public:
    explicit HeaderReader(InputFields &fields) : m_fields(fields) {}

    QString field()
    {
        const auto value = m_fields.field();
        m_complete = m_complete && value.has_value();
        return value.value_or(QString());
    }
    [[nodiscard]] bool isComplete() const { return m_complete; }

private:
    InputFields &m_fields;
    bool m_complete = true;
};

qint16 imageIndex(const QString &field)
{
    return static_cast<qint16>(std::clamp<qint32>(leadingNumber(field),
                                                  std::numeric_limits<qint16>::min(),
                                                  std::numeric_limits<qint16>::max()));
}

// A file that was cut in its last word still looks like six lines.
bool isCutWord(const InputFields &fields, const QString &word)
{
    return fields.lastWasCut() && word != QLatin1String("check") &&
           word != QLatin1String("nocheck");
}

std::optional<Recipient> readRecipient(InputFields &fields)
{
    Recipient row;
    const auto number = fields.field();
    const auto name = fields.wholeLine();
    const auto address = fields.wholeLine();
    const auto state = fields.field();
    const auto image = fields.field();
    const auto check = fields.field();
    if (!number || !name || !address || !state || !image || !check || isCutWord(fields, *check))
        return std::nullopt;
    row.number = *number;
    row.name = *name;
    row.address = *address;
    row.state = *state;
    row.imageIndex = imageIndex(*image);
    row.checked = check->compare(QLatin1String("CHECK"), Qt::CaseInsensitive) == 0;
    return row;
}

} // namespace

QString encodeProject(const ProjectData &project)
{
    // More than the six lines of most rows need: growing costs as much as the rest.
    constexpr qsizetype LengthOfARow = 120;
    QString text;
    text.reserve(static_cast<qsizetype>(project.recipients.size()) * LengthOfARow);
    // A quoted field may have been read over several lines; written so it would tear the file.
    const auto line = [&text](const QString &content) {
        text.append(oneLine(content)).append(LineEnd);
    };
    line(FormatTag);
    line(project.paused ? QLatin1String("pausa") : QLatin1String("stop"));
    line(fileNumber(project.nextRecipientIndex));
    line(project.elapsed);
    line(project.server);
    line(project.senderName);
    line(project.senderAddress);
    line(project.controlAddress);
    line(fileNumber(project.returnReceipt ? 1 : 0));
    line(project.textPath);
    line(project.htmlPath);
    line(project.subject);
    line(project.recipientsPath);
    line(project.messagesPerPacket);
    line(project.delayMinutes);
    line(fileNumber(project.multiSend ? 1 : 0));
    for (int i = 0; i < ReservedLines; ++i)
        line(QString());
    for (const QString &path : project.attachments)
        line(path);
    line(QString());
    for (const Recipient &row : project.recipients) {
        line(row.number);
        line(row.name);
        line(row.address);
        line(row.state);
        line(fileNumber(row.imageIndex));
        line(row.checked ? QLatin1String("check") : QLatin1String("nocheck"));
    }
    return text;
}

tl::expected<ProjectData, ProjectFault> decodeProject(QStringView text)
{
    InputFields fields(text);
    if (fields.field() != FormatTag)
        return tl::unexpected(ProjectFault::WrongTag);
    ProjectData project;
    HeaderReader header(fields);
    project.paused = header.field() == QLatin1String("pausa");
    project.nextRecipientIndex = leadingNumber(header.field());
    project.elapsed = header.field();
    project.server = header.field();
    project.senderName = header.field();
    project.senderAddress = header.field();
    project.controlAddress = header.field();
    project.returnReceipt = leadingNumber(header.field()) != 0;
    project.textPath = header.field();
    project.htmlPath = header.field();
    project.subject = header.field();
    project.recipientsPath = header.field();
    project.messagesPerPacket = header.field();
    project.delayMinutes = header.field();
    const QString multiSend = header.field();
    project.multiSend = multiSend.isEmpty() || leadingNumber(multiSend) != 0;
    for (int i = 0; i < ReservedLines; ++i)
        header.field();
    for (QString path = header.field(); !path.isEmpty(); path = header.field())
        project.attachments.append(path);
    if (!header.isComplete())
        return tl::unexpected(ProjectFault::Cut);
    while (!fields.atEnd()) {
        auto row = readRecipient(fields);
        if (!row) {
            project.cut = true;
            project.paused = false;
            break;
        }
        project.recipients.push_back(std::move(*row));
    }
    return project;
}
