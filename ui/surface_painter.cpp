#include "ui/surface_painter.h"

#include <QGlyphRun>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <optional>

namespace numerello {

namespace {

/// The strokes that touch one another: bars are rows of segments, a root is a sign and a bar. Drawn
/// glyph by glyph they would show seams, so neighbours become one outline that is filled once. A
/// bar is that of the sheets' face in every face, the only one that clears what stands above and
/// below.
class Joint {
  public:
    explicit Joint(QPainter& painter) : painter(painter) {}

    static bool Takes(const TextMark& mark) {
        return mark.text == "_" ||
               (mark.font.name == kSheetFace && (mark.text == "~" || mark.text == "&"));
    }

    void Add(const TextMark& mark, const FontMetrics& faces) {
        if (mark.color != color) {
            Fill();
            color = mark.color;
        }
        const Font font{std::string(kSheetFace), mark.font.size};
        const QRawFont& face = faces.Face(font);
        QPainterPath glyph = face.pathForGlyph(
            face.glyphIndexesForString(QString::fromStdString(mark.text)).value(0));
        glyph.translate(mark.x, mark.y + faces.Ascent(font));
        if (mark.text == "_") {
            AddSegment(glyph.boundingRect());
        } else {
            AddSign(glyph, mark.text == "&", mark.font.size);
        }
    }

    /// What comes next does not belong to a bar before it.
    void Leave() { goal.reset(); }

    void Fill() {
        EndBar();
        outline.setFillRule(Qt::WindingFill);
        painter.fillPath(outline.simplified(), ToQColor(color));
        outline = {};
    }

  private:
    /// Lengthens the bar at hand when the segment lies at its end.
    void AddSegment(const QRectF& segment) {
        constexpr double kTouching = 0.25;
        const bool touches = std::abs(segment.left() - bar.right()) < kTouching &&
                             std::abs(segment.top() - bar.top()) < kTouching;
        if (touches) {
            bar.setRight(segment.right());
            return;
        }
        EndBar();
        bar = segment;
        goal = bar.topLeft();
    }

    void EndBar() {
        if (!bar.isEmpty()) {
            QPainterPath rectangle;
            rectangle.addRect(bar);
            // Runs the way the glyphs run, so that an overlap is filled and not cut out.
            outline.addPath(rectangle.toReversed());
        }
        bar = {};
    }

    /// A sign comes right behind the bar that it belongs to, its upper part before the lower.
    void AddSign(QPainterPath& sign, bool isUpperPart, double fontSize) {
        if (goal) {
            PullTip(sign, *goal, fontSize);
        }
        goal.reset();
        if (isUpperPart) {
            const QRectF place = sign.boundingRect();
            const double strokeHeight = 0.8 / 12 * fontSize;
            goal = QPointF(EdgeMiddle(sign, place.bottom()), place.bottom() - strokeHeight);
        }
        outline.addPath(sign);
    }

    static bool IsAt(double y, double edge) { return std::abs(y - edge) < 0.01; }

    /// The middle of a level edge of an outline.
    static double EdgeMiddle(const QPainterPath& path, double edge) {
        double left = path.boundingRect().right();
        double right = path.boundingRect().left();
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element corner = path.elementAt(i);
            if (IsAt(corner.y, edge)) {
                left = std::min(left, corner.x);
                right = std::max(right, corner.x);
            }
        }
        return (left + right) / 2;
    }

    /// Lets the rising stroke end at the goal. On a sheet it does so anyway; on printed pages, and
    /// where a second fraction lifts the bar, the line routines leave the two some pixels apart.
    static void PullTip(QPainterPath& sign, QPointF goal, double fontSize) {
        constexpr double kExact = 0.02;  // in points of the size, as the others
        constexpr double kSideways = 0.3;
        constexpr double kUpright = 2.5;
        const double top = sign.boundingRect().top();
        const QPointF way = goal - QPointF(EdgeMiddle(sign, top), top);
        const double across = std::abs(way.x()) / fontSize;
        const double along = std::abs(way.y()) / fontSize;
        if ((across < kExact && along < kExact) || across > kSideways || along > kUpright) {
            return;
        }
        for (int i = 0; i < sign.elementCount(); ++i) {
            const QPointF corner = sign.elementAt(i);
            if (IsAt(corner.y(), top)) {
                sign.setElementPositionAt(i, corner.x() + way.x(), corner.y() + way.y());
            }
        }
    }

    QPainter& painter;
    QPainterPath outline;
    QRectF bar;
    std::optional<QPointF> goal;  ///< where the next sign's rising stroke ends
    Color color = kBlack;
};

/// Draws a run of glyphs of one face, whose origin is the mark's left end on the baseline.
void DrawRun(QPainter& painter, const QRawFont& face, QPointF origin, QList<quint32>& glyphs,
             QList<QPointF>& places) {
    QGlyphRun run;
    run.setRawFont(face);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter.drawGlyphRun(origin, run);
    glyphs.clear();
    places.clear();
}

void PaintText(QPainter& painter, const TextMark& mark, const FontMetrics& faces) {
    const QPointF origin(mark.x, mark.y + faces.Ascent(mark.font));
    painter.setPen(ToQColor(mark.color));
    const QRawFont* face = &faces.Face(mark.font);
    QList<quint32> glyphs;
    QList<QPointF> places;
    double x = 0;
    for (const char32_t character : QString::fromStdString(mark.text).toStdU32String()) {
        const QRawFont& its = faces.FaceOf(character, mark.font);
        if (&its != face) {
            DrawRun(painter, *face, origin, glyphs, places);
            face = &its;
        }
        glyphs += face->glyphIndexesForString(QString::fromUcs4(&character, 1));
        places.append({x + faces.RoomBefore(character, mark.font), 0});
        x += faces.CharacterWidth(character, mark.font);
    }
    DrawRun(painter, *face, origin, glyphs, places);
}

void PaintStroke(QPainter& painter, const StrokeMark& mark) {
    painter.setPen(QPen(ToQColor(mark.color), mark.width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(mark.x1, mark.y1), QPointF(mark.x2, mark.y2));
}

}  // namespace

QColor ToQColor(Color color) {
    return {static_cast<int>(color & 255), static_cast<int>(color >> 8 & 255),
            static_cast<int>(color >> 16 & 255)};
}

Color FromQColor(const QColor& color) {
    return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

void PaintMarks(QPainter& painter, const std::vector<Mark>& marks, const FontMetrics& faces,
                const PictureDrawer& drawPicture) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    Joint joint(painter);
    for (const Mark& mark : marks) {
        if (const auto* text = std::get_if<TextMark>(&mark)) {
            if (Joint::Takes(*text)) {
                joint.Add(*text, faces);
                continue;
            }
            PaintText(painter, *text, faces);
        } else if (const auto* stroke = std::get_if<StrokeMark>(&mark)) {
            PaintStroke(painter, *stroke);
        } else if (const auto* image = std::get_if<ImageMark>(&mark); image && drawPicture) {
            drawPicture(painter, image->key, {image->x, image->y});
        }
        joint.Leave();
    }
    joint.Fill();
    painter.restore();
}

}  // namespace numerello
