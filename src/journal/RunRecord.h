#pragma once

#include "base/CodePage.h"
#include "base/Language.h"
#include "project/ProjectData.h"
#include "recipients/Totals.h"

#include <optional>

/// What is known of a run: the project as it stood when the run began or last went on, brought up
/// to date with everything that was recorded since.
struct RunRecord
{
    QString projectPath; ///< empty when the project has no name
    qint64 started = 0;  ///< milliseconds since 1970 UTC
    ProjectData project; ///< paused where the run goes on; rows with states and attempts
    bool isOver = false; ///< it ended, was stopped or failed
    bool isDamaged =
        false; ///< something in it could not be read; what may have been sent counts so

    /// Of the rows that the run means, without the one it appended for the control address.
    [[nodiscard]] Totals totals() const;
    /// Whether anybody is left, or the control address.
    [[nodiscard]] bool canContinue() const;
    /// Whether the last row is the one for the control address.
    [[nodiscard]] bool hasControlRow() const;
    /// Whether a message was handed over at all; a damaged record may have lost the line of it.
    [[nodiscard]] bool hasBegun() const;
};

/// How the file of a run begins: the project, and what is known of every row.
[[nodiscard]] QByteArray encodeRun(RunRecord record, const CodePage &codePage);

/// Reads a run's file. States are written in the words of that language. What stands behind the
/// last whole line of the file does not count; what is broken inside is passed over, and the rows
/// that nobody accounts for are in doubt: those before the place that the run had come to, and
/// behind it those of a message for each line that is broken there. Nothing when it is no run's
/// file, or has no whole project.
[[nodiscard]] std::optional<RunRecord> readRun(QByteArrayView content, const CodePage &codePage,
                                               Language language);

/// The project that the run of that file belongs to; reads no further than the file's head. Empty
/// when it has no name, or when it is no run's file.
[[nodiscard]] QString projectOfRun(const QString &file);
