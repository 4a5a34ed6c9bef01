#pragma once

#include "base/RegionalFormats.h"
#include "recipients/Recipient.h"

#include <QCoreApplication>
#include <QList>

/// One thing that is known of a row.
struct DetailLine
{
    QString label;
    QString text;

    bool operator==(const DetailLine &) const = default;
};

/// All that is known of one row: who it is, and what became of the last message to it.
class RecipientDetails
{
    Q_DECLARE_TR_FUNCTIONS(RecipientDetails)

public:
    /// What is not known is left out. Times are local ones.
    [[nodiscard]] static QList<DetailLine> linesOf(const Recipient &row,
                                                   const RegionalFormats &formats);
};
