#pragma once

#include "prompts/Prompts.h"

#include <QStringList>

class QFileDialog;
class QWidget;

/// "Text file (*.txt)|*.txt|..." as Qt's name filters: the shown text, then the patterns in
/// parentheses. Files are found whether their suffix is in small or in capital letters.
[[nodiscard]] QStringList nameFilters(const QString &filter);

/// A dialog for that value, which opens in that folder: the desktop's own, if there is one.
[[nodiscard]] QFileDialog *newFileBox(const FileDialog &dialog, const QString &folder,
                                      bool desktopsOwn, QWidget *window);
