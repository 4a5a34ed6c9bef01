// Recipients files: rows are numbered without gaps, and their addresses can be mailed.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "base/modMain.h"
#include "recipients/RecipientsFile.h"

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const RecipientsText read =
        readRecipientsText(codePage.decode(bytes), QStringLiteral("Waiting"));
    int number = 0;
    for (const Recipient &row : read.rows) {
        mustHold(row.number == QString::number(++number), "rows are numbered without gaps");
        mustHold(IsValidEmail(row.address), "an address is valid");
        mustHold(!row.address.contains(u'#') && !row.address.contains(u';'),
                 "an address is cut at its comment and its end");
        mustHold(!row.name.contains(u'\n') && !row.name.contains(u'\r'), "a name is one line");
    }
    mustHold(number <= MostImportedRows, "rows are no more than can be counted");
}
