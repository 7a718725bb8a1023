#include "ui/graph_painter.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "ui/surface_painter.h"

namespace numerello {

namespace {

/// Closer grid lines would stand in unequal pairs if each kept to whole pixels.
constexpr double kClosestOnWholePixels = 6;

constexpr double kBesideLine = 4;  ///< from an axis or an edge to a figure
constexpr double kBelowLine = 2;

/// One direction of the device: how its pixels come from the painter's units.
struct Pixels {
    double scale;
    double offset;

    /// The middle of a line of that width, where it fills whole pixels.
    double Snapped(double place, double pixelWidth) const {
        const double pixel = place * scale + offset;
        const bool odd = std::fmod(pixelWidth, 2) == 1;
        return ((odd ? std::floor(pixel) + 0.5 : std::round(pixel)) - offset) / scale;
    }
};

/// Paints one mark after the other.
class MarkPainter {
  public:
    MarkPainter(QPainter& painter, const QRectF& place, const GraphPicture& picture,
                const FontMetrics& faces)
        : painter(painter),
          place(place),
          range(picture.range),
          ground(picture.BackColor),
          faces(faces),
          xUnit(place.width() / (range.GraphXMax - range.GraphXMin)),
          yUnit(place.height() / (range.GraphYMax - range.GraphYMin)),
          device(painter.deviceTransform()) {}

    void operator()(const GraphStroke& stroke) const {
        QLineF line(At(stroke.x1, stroke.y1), At(stroke.x2, stroke.y2));
        const double width = OnWholePixels(stroke) ? Snap(line, stroke.width) : stroke.width;
        painter.setPen(QPen(ToQColor(stroke.color), width, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(line);
    }

    void operator()(const GraphPath& path) const {
        const std::vector<GraphPoint>& points = path.points;
        if (points.size() == 2) {
            const GraphPoint& a = points[0];
            const GraphPoint& b = points[1];
            (*this)(GraphStroke{a.x, a.y, b.x, b.y, path.width, path.color});
            return;
        }
        QPolygonF corners;
        corners.reserve(static_cast<qsizetype>(points.size()));
        for (const GraphPoint& point : points) {
            corners.append(At(point.x, point.y));
        }
        painter.setPen(
            QPen(ToQColor(path.color), path.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        painter.drawPolyline(corners);
    }

    void operator()(const GraphDot& dot) const {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ToQColor(dot.color));
        painter.drawEllipse(At(dot.x, dot.y), dot.radius, dot.radius);
    }

    void operator()(const GraphLabel& label) const {
        const QPointF anchor = At(label.x, label.y);
        const double left = anchor.x() - label.alongWidth * faces.Width(label.text, label.font) +
                            (1 - 2 * label.alongWidth) * kBesideLine;
        const double top = anchor.y() - label.alongHeight * faces.LineHeight(label.font) +
                           (1 - 2 * label.alongHeight) * kBelowLine;
        const auto print = [&](double right, double down, Color color) {
            PaintMarks(painter, {TextMark{label.text, left + right, top + down, label.font, color}},
                       faces);
        };
        // A rim of the ground keeps the lines of the grid off the letters.
        for (const double right : {-1, 0, 1}) {
            for (const double down : {-1, 0, 1}) {
                print(right, down, ground);
            }
        }
        print(0, 0, label.color);
    }

  private:
    QPointF At(double x, double y) const {
        return {place.left() + (x - range.GraphXMin) * xUnit,
                place.top() + (range.GraphYMax - y) * yUnit};
    }

    bool OnWholePixels(const GraphStroke& stroke) const {
        const bool straight = stroke.x1 == stroke.x2 || stroke.y1 == stroke.y2;
        const double apart = std::min(xUnit * device.m11(), yUnit * device.m22());
        return straight && device.type() <= QTransform::TxScale &&
               (stroke.width > 1 || apart >= kClosestOnWholePixels);
    }

    /// Moves the line to whole pixels; returns the width of so many of them.
    double Snap(QLineF& line, double width) const {
        const bool upright = line.x1() == line.x2();
        const Pixels across =
            upright ? Pixels{device.m11(), device.dx()} : Pixels{device.m22(), device.dy()};
        const double pixelWidth = std::max(1.0, std::round(width * across.scale));
        if (upright) {
            const double x = across.Snapped(line.x1(), pixelWidth);
            line.setLine(x, line.y1(), x, line.y2());
        } else {
            const double y = across.Snapped(line.y1(), pixelWidth);
            line.setLine(line.x1(), y, line.x2(), y);
        }
        return pixelWidth / across.scale;
    }

    QPainter& painter;
    const QRectF& place;
    const GraphRange& range;
    Color ground;
    const FontMetrics& faces;
    double xUnit;
    double yUnit;
    QTransform device;
};

}  // namespace

void PaintGraph(QPainter& painter, const QRectF& place, const GraphPicture& picture,
                const FontMetrics& faces) {
    if (place.isEmpty()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(place, Qt::IntersectClip);
    painter.fillRect(place, ToQColor(picture.BackColor));
    const MarkPainter each(painter, place, picture, faces);
    for (const GraphMark& mark : picture.marks) {
        std::visit(each, mark);
    }
    painter.restore();
}

}  // namespace numerello
