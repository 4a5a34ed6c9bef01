#pragma once

#include "base/Files.h"
#include "recipients/Recipient.h"

#include <QCoreApplication>
#include <QDateTime>

#include <vector>

/// What a report is about.
struct ReportSubject
{
    QString project; ///< the file's path; empty when it has no name
    QString subject; ///< of the message
    QString sender;  ///< address
    QDateTime made;  ///< with the offset from UTC in which its times are told
};

/// What became of every row, to be kept or looked at elsewhere. Its head has totals, each row in
/// exactly one of them.
class Report
{
    Q_DECLARE_TR_FUNCTIONS(Report)

public:
    Report(ReportSubject subject, std::vector<Recipient> rows);

    /// Fields separated by ";", UTF-8 with a byte-order mark, so that spreadsheets read it; quoted
    /// as in RFC 4180, and so that no field is taken for a formula.
    [[nodiscard]] QByteArray toCsv() const;
    [[nodiscard]] QByteArray toJson() const;
    /// Replaces that file; JSON when its name ends in ".json".
    [[nodiscard]] tl::expected<void, FileError> write(const QString &path) const;

private:
    ReportSubject m_subject;
    std::vector<Recipient> m_rows;
};
