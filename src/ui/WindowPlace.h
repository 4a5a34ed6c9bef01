#pragma once

#include <QString>

class QMainWindow;
class QSplitter;
class QHeaderView;

/// Size, splitter and column widths of the main window, kept in a file of their own: they say how
/// this screen is used, not how the user mails.
class WindowPlace
{
public:
    explicit WindowPlace(const QString &file) : m_file(file) {}

    /// $XDG_CONFIG_HOME/Sorvanta/window.ini, or the system's like of it.
    [[nodiscard]] static QString defaultFile();

    /// False when nothing is known, or when it does not fit the window.
    bool restore(QMainWindow &window, QSplitter &splitter, QHeaderView &columns) const;
    void save(const QMainWindow &window, const QSplitter &splitter,
              const QHeaderView &columns) const;

private:
    QString m_file;
};
