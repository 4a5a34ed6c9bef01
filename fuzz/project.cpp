// Project files: any bytes are a project or a fault, and what was written reads back the same.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "project/ProjectData.h"

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const auto read = decodeProject(codePage.decode(bytes));
    if (!read)
        return;
    mustHold(read->nextRecipientIndex >= std::numeric_limits<qint32>::min(), "a cursor");
    // What the format cannot hold is gone after it was written once.
    const auto once = decodeProject(encodeProject(*read));
    if (!once)
        return;
    const QString written = encodeProject(*once);
    mustHold(codePage.decode(codePage.encode(written)) == written, "text comes back");
    const auto twice = decodeProject(written);
    mustHold(twice.has_value(), "what was written is a project");
    mustHold(twice->recipients.size() == once->recipients.size(), "no recipient is lost");
}
