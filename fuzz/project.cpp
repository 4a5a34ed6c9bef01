// Project files: any bytes are a project or a fault, and what the format can hold comes back.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "project/ProjectData.h"

#include <algorithm>

namespace {

/// Whether a field that is read as comma-delimited input is what was written.
bool comesBack(const QString &field)
{
    return !field.contains(u',') && !field.contains(u'\r') && !field.contains(u'\n') &&
           !field.startsWith(u'"') && !field.startsWith(u' ');
}

bool comesBack(const ProjectData &project)
{
    const QStringList fields{
        project.elapsed,           project.server,         project.senderName,
        project.senderAddress,     project.controlAddress, project.textPath,
        project.htmlPath,          project.subject,        project.recipientsPath,
        project.messagesPerPacket, project.delayMinutes};
    const auto all = [](const auto &some, auto holds) {
        return std::all_of(some.begin(), some.end(), holds);
    };
    const auto ofText = [](const QString &field) { return comesBack(field); };
    return all(fields, ofText) && all(project.attachments, ofText) &&
           all(project.recipients,
               [](const Recipient &row) { return comesBack(row.number) && comesBack(row.state); });
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const auto read = decodeProject(codePage.decode(bytes));
    if (!read)
        return;
    const QString written = encodeProject(*read);
    mustHold(codePage.decode(codePage.encode(written)) == written, "text comes back");
    const auto again = decodeProject(written);
    if (!comesBack(*read))
        return;
    mustHold(again.has_value() && !again->cut, "what was written is a whole project");
    mustHold(again->recipients.size() == read->recipients.size(), "no recipient is lost");
    mustHold(encodeProject(*again) == written, "every field comes back");
}
