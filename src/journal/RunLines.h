#pragma once

#include "recipients/Attempt.h"

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

/// The lines of a run's record. Each is a checksum (CRC-32, eight hexadecimal digits), a blank, and
/// fields set apart by tabs; what is broken is known by it, and only a line that ends with LF
/// counts. In a field "\" stands before what would break it: "\t", "\n", "\r", "\\".
///
///     run       1, when it started, the project's path
///     project   size, checksum; behind the line come that many bytes of a project file, and LF
///     field     a name, a value: what a project file cannot hold as it stands
///     try       position, outcome, time, tries, identifier, verb, code, enhanced code, text
///     send      time, elapsed seconds, positions, identifier
///     done      time, positions, outcome, verb, code, enhanced code, text
///     over      time
///
/// Positions are as "1-3,5"; times are milliseconds since 1970 UTC.
namespace RunLines {

/// A line that is whole.
struct Line
{
    QString kind;
    QStringList fields; ///< behind the kind
    QByteArray project; ///< what a line of that kind brings with it
};

[[nodiscard]] QByteArray run(qint64 started, const QString &projectPath);
[[nodiscard]] QByteArray project(const QByteArray &content);
[[nodiscard]] QByteArray field(const QString &name, const QString &value);
[[nodiscard]] QByteArray attempt(int position, const Attempt &attempt);
[[nodiscard]] QByteArray send(qint64 time, const QString &elapsed,
                              const std::vector<int> &positions, const QString &identifier);
[[nodiscard]] QByteArray done(qint64 time, const std::vector<int> &positions, Outcome outcome,
                              const ServerReply &reply);
[[nodiscard]] QByteArray over(qint64 time);

/// Takes lines from the front of a content.
class Reader
{
public:
    explicit Reader(QByteArrayView content) : m_rest(content) {}

    /// The next whole line; nothing at the end. Broken ones are passed over.
    [[nodiscard]] std::optional<Line> next();
    /// How many were, so far.
    [[nodiscard]] int brokenLines() const { return m_brokenLines; }

private:
    [[nodiscard]] bool takeProject(Line &line);

    QByteArrayView m_rest;
    int m_brokenLines = 0;
};

/// The positions of a field in a list of so many rows; none when it holds anything else.
[[nodiscard]] std::vector<int> positionsOf(const QString &field, int rows);
/// The outcome of a field; None when it is no word for one.
[[nodiscard]] Outcome outcomeOf(const QString &field);
/// The reply in the four fields from that place on.
[[nodiscard]] ServerReply replyOf(const QStringList &fields, qsizetype first);

} // namespace RunLines
