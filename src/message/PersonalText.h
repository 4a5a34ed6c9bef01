#pragma once

#include <QString>

/// A message's text with a recipient's name in each place that asks for it. The name goes in as it
/// is, into HTML too.
[[nodiscard]] QString withName(QString text, const QString &name);
