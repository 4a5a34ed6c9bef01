#pragma once

#include "smtp/ServerReport.h"

#include <QList>

/// One line of a server's report for people.
struct ReportLine
{
    enum class Kind { Good, Note, Bad };

    Kind kind = Kind::Good;
    QString label; ///< "Certificate"
    QString text;
};

/// The report as lines, in the order of its steps: found, connected, encrypted with what, the
/// certificate, the extensions, the login, the size limit, and why it ended early. A report that
/// goes on has fewer lines.
[[nodiscard]] QList<ReportLine> linesOf(const ServerReport &report);
