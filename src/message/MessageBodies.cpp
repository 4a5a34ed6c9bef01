#include "message/MessageBodies.h"

#include "base/Files.h"
#include "base/modMain.h"
#include "message/LinkedFiles.h"

#include <QDir>
#include <QFile>

#include <functional>

MessageBodies::MessageBodies(const Form &form, const MessageReader &reader, Smtp &SMTP,
                             const QString &programFolder)
    : m_form(form), m_reader(reader), m_SMTP(SMTP), m_programFolder(programFolder)
{}

template <typename Read>
bool MessageBodies::loadText(const Read &read)
{
    const QString path = m_form.tag(Control::txtEmail);
    return path.isEmpty() || read(m_textBody, path, MessageKind::Text);
}

template <typename Read>
bool MessageBodies::loadHtml(const Read &read)
{
    if (m_form.text(Control::txtHTML).isEmpty())
        return true;
    if (!read(m_htmlBody, m_form.tag(Control::txtHTML), MessageKind::Html))
        return false;
    StageLinkedImages();
    return true;
}

bool MessageBodies::LoadTextBody()
{
    return loadText(std::bind_front(&MessageReader::LoadMessageFile, &m_reader));
}

bool MessageBodies::LoadHtmlBody()
{
    return loadHtml(std::bind_front(&MessageReader::LoadMessageFile, &m_reader));
}

void MessageBodies::empty()
{
    m_textBody.clear();
    m_htmlBody.clear();
}

tl::expected<void, FileError> MessageBodies::loadSilently()
{
    empty();
    tl::expected<void, FileError> outcome;
    const auto read = [&](QString &content, const QString &path, MessageKind kind) {
        outcome = m_reader.read(path, kind).map([&](const QString &text) { content = text; });
        return outcome.has_value();
    };
    if (loadText(read))
        loadHtml(read);
    return outcome;
}

bool MessageBodies::CheckLinkedImages(const QString &htmlPath) const
{
    QString content;
    m_reader.LoadMessageFile(content, htmlPath, MessageKind::Html);
    content = lowerCaseInPlace(content);
    const QString folder = FolderOf(htmlPath);
    auto link = findLink(content, 0).link;
    while (link) {
        if (findLinkedFile(folder, QStringView(content).sliced(link->start, link->length))
                .isEmpty())
            return false;
        link = findLink(content, link->start + 1).link;
    }
    return true;
}

// Every failure is passed over and the next step taken. A picture in a subfolder has no folder of
// that name in the working folder, so its copy fails; the client is given the path all the same.
void MessageBodies::StageLinkedImages()
{
    QDir().mkpath(workingFolder());
    const QString folder = FolderOf(m_form.tag(Control::txtHTML));
    QString lower = lowerCaseInPlace(m_htmlBody);
    auto link = findLink(lower, 0).link;
    while (link) {
        const QString name = lower.sliced(link->start, link->length);
        const auto written = QStringView(m_htmlBody).sliced(link->start, link->length);
        // A link that climbs out of the folder would let private files travel.
        const QString reference =
            staysBelow(name) ? stage(findLinkedFile(folder, written), name) : QString();
        // A link whose file the client cannot take stays: it may lead to the web.
        if (!reference.isEmpty()) {
            m_htmlBody.replace(link->start, link->length, reference);
            lower.replace(link->start, link->length, reference);
        }
        link = findLink(lower, link->start + 1).link;
    }
}

QString MessageBodies::stage(const QString &source, const QString &name)
{
    const QString copy = joinPath(workingFolder(), name);
    QFile::remove(copy);
    if (!source.isEmpty())
        QFile::copy(source, copy);
    return m_SMTP.AddRelatedFile(copy);
}

void MessageBodies::emptyWorkingFolder() const
{
    QDir folder(workingFolder());
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names)
        folder.remove(name);
}

QString MessageBodies::workingFolder() const
{
    return joinPath(m_programFolder, QStringLiteral("Temp"));
}
