#pragma once

#include "recipients/Recipient.h"

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <vector>

/// Everything a project file holds.
struct ProjectData
{
    bool paused = false;
    qint32 nextRecipientIndex = 1;
    QString elapsed; ///< seconds, as text
    QString server;
    QString senderName;
    QString senderAddress;
    QString controlAddress;
    bool returnReceipt = false;
    QString textPath;
    QString htmlPath;
    QString subject;
    QString recipientsPath;
    QString messagesPerPacket;
    QString delayMinutes;
    bool multiSend = false;
    QStringList attachments;
    std::vector<Recipient> recipients;
    /// Read from a file that ends inside a recipient: what stood before the cut is here.
    bool cut = false;
};

/// Why a text is no project.
enum class ProjectFault {
    WrongTag, ///< it does not begin with "v2.0"
    Cut,      ///< it ends inside the header or the list of attachments
};

/// The text of a project file: one field a line, each ended by CR LF. Nothing is escaped: a comma
/// or a leading quote in a field that is read as comma-delimited input does not come back, which is
/// part of the format.
[[nodiscard]] QString encodeProject(const ProjectData &project);

/// Reads that text. Numbers are lenient: the leading number, else 0; an empty choice of "several
/// recipients at once" is yes.
[[nodiscard]] tl::expected<ProjectData, ProjectFault> decodeProject(QStringView text);
