#pragma once

#include <QString>
#include <QStringView>

/// What somebody reads of an HTML text, roughly: without tags, comments, styles and scripts, and
/// with single blanks. Good enough to count words; nothing is ever shown by it.
[[nodiscard]] QString wordsOfHtml(QStringView html);

/// Whether it shows a picture.
[[nodiscard]] bool hasPicture(QStringView html);
