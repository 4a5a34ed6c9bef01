#include "ui/WindowPlace.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>

namespace {

const QString Geometry = QStringLiteral("geometry");
const QString Splitter = QStringLiteral("splitter");
const QString Columns = QStringLiteral("columns");

} // namespace

QString WindowPlace::defaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Sorvanta/window.ini");
}

bool WindowPlace::restore(QMainWindow &window, QSplitter &splitter, QHeaderView &columns) const
{
    const QSettings place(m_file, QSettings::IniFormat);
    const QList<QVariant> widths = place.value(Columns).toList();
    if (!window.restoreGeometry(place.value(Geometry).toByteArray()))
        return false;
    splitter.restoreState(place.value(Splitter).toByteArray());
    if (widths.size() != columns.count())
        return false;
    for (int column = 0; column < columns.count(); ++column)
        columns.resizeSection(column, qMax(columns.minimumSectionSize(), widths[column].toInt()));
    return true;
}

void WindowPlace::save(const QMainWindow &window, const QSplitter &splitter,
                       const QHeaderView &columns) const
{
    QSettings place(m_file, QSettings::IniFormat);
    place.setValue(Geometry, window.saveGeometry());
    place.setValue(Splitter, splitter.saveState());
    QList<QVariant> widths;
    for (int column = 0; column < columns.count(); ++column)
        widths.append(columns.sectionSize(column));
    place.setValue(Columns, widths);
    place.sync();
}
