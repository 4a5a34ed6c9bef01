#pragma once

#include "base/Files.h"
#include "base/Language.h"
#include "recipients/Recipient.h"

#include <QCoreApplication>
#include <QDateTime>

#include <vector>

/// What a report is about.
struct ReportSubject
{
    QString project;                       ///< the file's path; empty when it has no name
    QString subject;                       ///< of the message
    QString sender;                        ///< address
    QDateTime made;                        ///< with the offset from UTC in which its times are told
    Language language = Language::English; ///< of the numbers in its sentences
};

/// What became of every row, to be kept or looked at elsewhere. Its head has totals, each row in
/// exactly one of them, and says whether everybody who was meant is accounted for.
class Report
{
    Q_DECLARE_TR_FUNCTIONS(Report)

public:
    Report(ReportSubject subject, std::vector<Recipient> rows);

    /// Fields separated by ";", UTF-8 with a byte-order mark, so that spreadsheets read it; quoted
    /// as in RFC 4180, and with an apostrophe before what would be taken for a formula. First the
    /// head, a label and a value a line; behind an empty line the headings and the rows.
    [[nodiscard]] QByteArray toCsv() const;
    /// The same as one object, for programs: keys and outcomes are the same in every language.
    [[nodiscard]] QByteArray toJson() const;
    /// Replaces that file; JSON when its name ends in ".json".
    [[nodiscard]] tl::expected<void, FileError> write(const QString &path) const;

private:
    [[nodiscard]] QList<QStringList> head() const;
    [[nodiscard]] static QStringList headings();
    [[nodiscard]] QStringList fieldsOf(const Recipient &row) const;
    /// Empty when there is none.
    [[nodiscard]] QString timeOf(const Attempt &attempt) const;

    ReportSubject m_subject;
    std::vector<Recipient> m_rows;
};
