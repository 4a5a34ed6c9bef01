#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QRect>
#include <QSize>
#include <QString>

#include <array>

class QPainter;
class QPixmap;

/// The corners of a box, each the radii of an ellipse.
struct Corners
{
    QSize topLeft, topRight, bottomRight, bottomLeft;

    [[nodiscard]] bool areSquare() const;
};

/// A line at one side of a box.
struct BorderLine
{
    enum class Kind { None, Solid, Dotted, Dashed, Double };

    int width = 0;
    Kind kind = Kind::None;
    QColor color;
};

/// The lines around a box, clockwise from the top.
using BorderLines = std::array<BorderLine, 4>;

/// The font for what a style sheet asks for: families as a list with commas, a size in pixels, a
/// weight from 100 to 900.
[[nodiscard]] QFont fontOf(const QString &families, int size, int weight, bool italic);

/// The outline of a box with round corners.
[[nodiscard]] QPainterPath outlineOf(const QRect &box, const Corners &corners);

/// Draws the lines inside the edge of a box.
void drawBorders(QPainter &painter, const QRect &box, const BorderLines &lines,
                 const Corners &corners);

/// Fills an area with copies of a picture, each of that size, one of them at `origin`.
void drawTiles(QPainter &painter, const QRect &area, const QPixmap &picture, const QRect &origin);
