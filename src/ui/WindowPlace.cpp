#include "ui/WindowPlace.h"

#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

WindowPlace::WindowPlace(const QString &file, const QString &group)
    : m_file(file), m_group(group.isEmpty() ? group : group + u'/')
{}

QString WindowPlace::defaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/Sorvanta/window.ini"_L1;
}

bool WindowPlace::restoreGeometry(QWidget &window) const
{
    const QSettings place(m_file, QSettings::IniFormat);
    return window.restoreGeometry(place.value(m_group + "geometry"_L1).toByteArray());
}

void WindowPlace::saveGeometry(const QWidget &window) const
{
    QSettings place(m_file, QSettings::IniFormat);
    place.setValue(m_group + "geometry"_L1, window.saveGeometry());
}

void WindowPlace::restoreSize(QWidget &dialog) const
{
    const QSettings place(m_file, QSettings::IniFormat);
    const QSize size = place.value(m_group + "size"_L1).toSize();
    // The screen may be a smaller one now.
    if (size.isValid())
        dialog.resize(size.boundedTo(dialog.screen()->availableSize()));
}

void WindowPlace::saveSize(const QWidget &dialog) const
{
    QSettings place(m_file, QSettings::IniFormat);
    place.setValue(m_group + "size"_L1, dialog.size());
}

bool WindowPlace::restoreParts(QSplitter &splitter, QHeaderView &columns) const
{
    const QSettings place(m_file, QSettings::IniFormat);
    splitter.restoreState(place.value(m_group + "splitter"_L1).toByteArray());
    const QList<QVariant> widths = place.value(m_group + "columns"_L1).toList();
    if (widths.size() != columns.count())
        return false;
    for (int column = 0; column < columns.count(); ++column)
        columns.resizeSection(column, qMax(columns.minimumSectionSize(), widths[column].toInt()));
    return true;
}

void WindowPlace::saveParts(const QSplitter &splitter, const QHeaderView &columns) const
{
    QSettings place(m_file, QSettings::IniFormat);
    place.setValue(m_group + "splitter"_L1, splitter.saveState());
    QList<QVariant> widths;
    for (int column = 0; column < columns.count(); ++column)
        widths.append(columns.sectionSize(column));
    place.setValue(m_group + "columns"_L1, widths);
}
