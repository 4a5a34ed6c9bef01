#include "ui/HtmlPainting.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Beyond it, curves and dashes nobody would see the whole of take for ever.
constexpr int MaxCurvedSide = 16000;

bool isHuge(const QRect &box)
{
    return box.width() > MaxCurvedSide || box.height() > MaxCurvedSide;
}

// The part of the frame that belongs to a side: its corners are cut slantwise.
QPolygon sideOf(const QRect &outer, const QRect &inner, int side)
{
    const std::array<QPoint, 4> outerCorners{
        outer.topLeft(), QPoint(outer.x() + outer.width(), outer.y()),
        QPoint(outer.x() + outer.width(), outer.y() + outer.height()),
        QPoint(outer.x(), outer.y() + outer.height())};
    const std::array<QPoint, 4> innerCorners{
        inner.topLeft(), QPoint(inner.x() + inner.width(), inner.y()),
        QPoint(inner.x() + inner.width(), inner.y() + inner.height()),
        QPoint(inner.x(), inner.y() + inner.height())};
    const auto from = std::size_t(side);
    const std::size_t to = (from + 1) % 4;
    return QPolygon({outerCorners[from], outerCorners[to], innerCorners[to], innerCorners[from]});
}

QRect inside(const QRect &box, const BorderLines &lines, int part, int parts)
{
    const auto share = [&](std::size_t side) { return lines[side].width * part / parts; };
    return box.adjusted(share(3), share(0), -share(1), -share(2));
}

Corners inside(const Corners &corners, const BorderLines &lines, int part, int parts)
{
    const auto share = [&](std::size_t side) { return lines[side].width * part / parts; };
    const auto less = [](QSize radii, int x, int y) {
        return (radii - QSize(x, y)).expandedTo({0, 0});
    };
    return {less(corners.topLeft, share(3), share(0)), less(corners.topRight, share(1), share(0)),
            less(corners.bottomRight, share(1), share(2)),
            less(corners.bottomLeft, share(3), share(2))};
}

// What lies between two outlines of the frame, each at so many parts of the lines' widths.
QPainterPath ring(const QRect &box, const BorderLines &lines, const Corners &corners, int from,
                  int to, int parts)
{
    QPainterPath path =
        outlineOf(inside(box, lines, from, parts), inside(corners, lines, from, parts));
    path.addPath(outlineOf(inside(box, lines, to, parts), inside(corners, lines, to, parts)));
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

void drawBroken(QPainter &painter, const QRect &box, const BorderLines &lines, std::size_t side)
{
    const BorderLine &line = lines[side];
    const QRectF middle = QRectF(box).adjusted(lines[3].width / 2.0, lines[0].width / 2.0,
                                               -lines[1].width / 2.0, -lines[2].width / 2.0);
    const std::array<QLineF, 4> edges{QLineF(middle.topLeft(), middle.topRight()),
                                      QLineF(middle.topRight(), middle.bottomRight()),
                                      QLineF(middle.bottomRight(), middle.bottomLeft()),
                                      QLineF(middle.bottomLeft(), middle.topLeft())};
    QPen pen(line.color, line.width);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern(line.kind == BorderLine::Kind::Dotted ? QList<qreal>{1, 1}
                                                             : QList<qreal>{3, 2});
    painter.setPen(pen);
    painter.drawLine(edges[side]);
    painter.setPen(Qt::NoPen);
}

// Whether the frame can be drawn in one go, without seams at its corners.
bool isOneLine(const BorderLines &lines)
{
    const BorderLine &first = lines.front();
    return std::all_of(lines.begin(), lines.end(), [&first](const BorderLine &line) {
        return line.kind == BorderLine::Kind::Solid && line.color == first.color && line.width > 0;
    });
}

QString familyOf(const QString &name)
{
    const QString family = name.trimmed();
    const bool isQuoted = family.size() > 1 && (family.front() == u'"' || family.front() == u'\'');
    return isQuoted ? family.sliced(1, family.size() - 2) : family;
}

QFont::StyleHint hintOf(const QStringList &families)
{
    for (const QString &family : families) {
        const QString name = family.toLower();
        if (name == "serif"_L1)
            return QFont::Serif;
        if (name == "monospace"_L1)
            return QFont::Monospace;
    }
    return QFont::SansSerif;
}

} // namespace

bool Corners::areSquare() const
{
    return topLeft.isEmpty() && topRight.isEmpty() && bottomRight.isEmpty() && bottomLeft.isEmpty();
}

QFont fontOf(const QString &families, int size, int weight, bool italic)
{
    QStringList names;
    for (const QString &name : families.split(u','))
        names += familyOf(name);
    QFont font(names);
    font.setStyleHint(hintOf(names));
    font.setPixelSize(std::clamp(size, 1, 400));
    font.setWeight(static_cast<QFont::Weight>(std::clamp(weight, 100, 900)));
    font.setItalic(italic);
    return font;
}

QPainterPath outlineOf(const QRect &box, const Corners &corners)
{
    QPainterPath path;
    if (corners.areSquare() || isHuge(box)) {
        path.addRect(box);
        return path;
    }
    // Corners that would overlap share the side.
    const double scale = std::min(
        {1.0, double(box.width()) / std::max(1, corners.topLeft.width() + corners.topRight.width()),
         double(box.width()) /
             std::max(1, corners.bottomLeft.width() + corners.bottomRight.width()),
         double(box.height()) / std::max(1, corners.topLeft.height() + corners.bottomLeft.height()),
         double(box.height()) /
             std::max(1, corners.topRight.height() + corners.bottomRight.height())});
    const auto ellipse = [scale](QSize radii) { return QSizeF(radii) * scale * 2; };
    const QRectF edge(box);
    const auto arc = [&path](QPointF at, QSizeF size, double start) {
        path.arcTo(QRectF(at, size), start, -90);
    };
    const QSizeF topLeft = ellipse(corners.topLeft);
    const QSizeF topRight = ellipse(corners.topRight);
    const QSizeF bottomRight = ellipse(corners.bottomRight);
    const QSizeF bottomLeft = ellipse(corners.bottomLeft);
    path.moveTo(edge.left(), edge.top() + topLeft.height() / 2);
    arc(edge.topLeft(), topLeft, 180);
    arc({edge.right() - topRight.width(), edge.top()}, topRight, 90);
    arc({edge.right() - bottomRight.width(), edge.bottom() - bottomRight.height()}, bottomRight, 0);
    arc({edge.left(), edge.bottom() - bottomLeft.height()}, bottomLeft, -90);
    path.closeSubpath();
    return path;
}

void drawBorders(QPainter &painter, const QRect &box, const BorderLines &lines,
                 const Corners &corners)
{
    if (box.isEmpty())
        return;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing, !corners.areSquare());
    const QRect inner = inside(box, lines, 1, 1);
    if (isOneLine(lines) && !corners.areSquare()) {
        painter.setBrush(lines.front().color);
        painter.drawPath(ring(box, lines, corners, 0, 1, 1));
        painter.restore();
        return;
    }
    for (std::size_t side = 0; side < lines.size(); ++side) {
        const BorderLine &line = lines[side];
        if (line.width <= 0 || line.kind == BorderLine::Kind::None)
            continue;
        const bool isBroken =
            line.kind == BorderLine::Kind::Dotted || line.kind == BorderLine::Kind::Dashed;
        if (isBroken && corners.areSquare() && !isHuge(box)) {
            drawBroken(painter, box, lines, side);
            continue;
        }
        QPainterPath part;
        part.addPolygon(sideOf(box, inner, int(side)));
        part.closeSubpath();
        painter.setBrush(line.color);
        if (line.kind == BorderLine::Kind::Double && line.width > 2) {
            painter.drawPath(part & ring(box, lines, corners, 0, 1, 3));
            painter.drawPath(part & ring(box, lines, corners, 2, 3, 3));
        } else if (corners.areSquare()) {
            painter.drawPath(part);
        } else {
            painter.drawPath(part & ring(box, lines, corners, 0, 1, 1));
        }
    }
    painter.restore();
}

void drawTiles(QPainter &painter, const QRect &area, const QPixmap &picture, const QRect &origin)
{
    if (picture.isNull() || origin.isEmpty())
        return;
    QBrush brush(picture);
    QTransform place;
    place.translate(origin.x(), origin.y());
    place.scale(double(origin.width()) / picture.width(),
                double(origin.height()) / picture.height());
    brush.setTransform(place);
    painter.fillRect(area, brush);
}
