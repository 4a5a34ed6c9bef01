// Recipients files: rows are numbered without gaps, and their addresses can be mailed.

#include "Fuzzing.h"
#include "base/CodePage.h"
#include "base/Lines.h"
#include "base/modMain.h"
#include "recipients/RecipientsFile.h"

namespace {

bool isOneLine(const QString &text)
{
    return !text.contains(u'\n') && !text.contains(u'\r');
}

qsizetype linesIn(QStringView text)
{
    LineReader lines(text);
    qsizetype count = 0;
    while (lines.next())
        ++count;
    return count;
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const QString text = codePage.decode(bytes);
    const RecipientsText read = readRecipientsText(text, QStringLiteral("Waiting"));
    int number = 0;
    for (const Recipient &row : read.rows) {
        mustHold(row.number == QString::number(++number), "rows are numbered without gaps");
        mustHold(IsValidEmail(row.address), "an address is valid");
        mustHold(!row.address.contains(u'#') && !row.address.contains(u';'),
                 "an address is cut at its comment and its end");
        mustHold(isOneLine(row.name) && isOneLine(row.address), "no field has a line end");
    }
    if (read.complete)
        mustHold(number + linesIn(read.rejected) == linesIn(text),
                 "each line is a row, or is rejected");
}
