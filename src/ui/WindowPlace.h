#pragma once

#include <QString>

class QHeaderView;
class QSplitter;
class QWidget;

/// Size, splitter and column widths of a window, kept in a file of their own: they say how this
/// screen is used, not how the user mails.
class WindowPlace
{
public:
    /// Several windows share the file, each with a group of its own; the main window has none.
    explicit WindowPlace(const QString &file, const QString &group = {});

    /// $XDG_CONFIG_HOME/Sorvanta/window.ini, or the system's like of it.
    [[nodiscard]] static QString defaultFile();

    /// Size and place on the screen. False when nothing is known.
    bool restoreGeometry(QWidget &window) const;
    void saveGeometry(const QWidget &window) const;
    /// The size alone, of a dialog: it opens over its window wherever that is.
    void restoreSize(QWidget &dialog) const;
    void saveSize(const QWidget &dialog) const;
    /// False when nothing is known, or when it does not fit.
    bool restoreParts(QSplitter &splitter, QHeaderView &columns) const;
    void saveParts(const QSplitter &splitter, const QHeaderView &columns) const;

private:
    QString m_file;
    QString m_group;
};
