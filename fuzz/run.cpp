// Records of runs: whatever is broken in one, nobody becomes sent or waiting by it.

#include "Fuzzing.h"
#include "journal/RunRecord.h"

void fuzz(QByteArrayView bytes)
{
    static const CodePage codePage("windows-1252");
    const auto record = readRun(bytes, codePage, Language::English);
    if (!record)
        return;
    const Totals totals = record->totals();
    mustHold(totals.sent + totals.refused + totals.inDoubt + totals.waiting + totals.notSent ==
                 totals.rows,
             "every row counts once");
    const auto again = readRun(encodeRun(*record, codePage), codePage, Language::English);
    mustHold(again.has_value(), "what was written is a record");
    mustHold(again->project.recipients.size() == record->project.recipients.size(),
             "no recipient is lost");
    mustHold(again->totals().sent == totals.sent, "who was sent to stays so");
}
