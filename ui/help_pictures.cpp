#include "ui/help_pictures.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "catalogue/entry_layouts.h"
#include "core/silent_learner.h"
#include "core/text.h"
#include "help/contents.h"
#include "help/worked_example.h"
#include "typeset/math_line.h"
#include "typeset/variants.h"
#include "ui/artwork.h"
#include "ui/check_mark.h"
#include "ui/entry_form.h"
#include "ui/help_files.h"
#include "ui/surface_painter.h"
#include "ui/text.h"
#include "worksheet/number_line.h"

namespace numerello {

namespace {

/// A line of mathematics that would be wider goes on in a second row.
constexpr double kLongestRow = 560;
/// Above the first row, for fractions and powers.
constexpr double kHeadroom = 100;
constexpr double kPad = 1;
constexpr double kRootPad = 5;
constexpr QSize kEntrySheet(800, 265);
constexpr int kEntryPad = 4;
constexpr double kEntryScale = 0.8;  ///< so that the widest entry fits beside the contents

/// One sheet without end, for a line that is drawn alone.
class EndlessSheet : public Sheets {
  public:
    explicit EndlessSheet(const TextMetrics& metrics) : surface(metrics, SheetFont()) {}

    Surface& Current() override { return surface; }
    void Turn() override {}

  private:
    Surface surface;
};

/// As on the sheets, but at the left edge, and on and on.
TypesetVariant LoneLine(double longestRow) {
    TypesetVariant variant = kPaperVariant;
    variant.freshPage.reset();
    variant.marginBlanks = 0;
    variant.page.reset();
    variant.wrap->limit = longestRow;
    variant.wrap->x = 0;
    return variant;
}

/// As wide as the text's cells and as high as its ink.
QRectF PlaceOfText(const TextMark& mark, const FontMetrics& metrics) {
    const QRawFont& face = metrics.Face(mark.font);
    QRectF ink;
    for (const quint32 glyph : face.glyphIndexesForString(ToQString(mark.text))) {
        ink |= face.boundingRect(glyph);
    }
    return {mark.x, mark.y + metrics.Ascent(mark.font) + ink.top(),
            metrics.Width(mark.text, mark.font), ink.height()};
}

QRectF PlaceOf(const Mark& mark, const FontMetrics& metrics) {
    if (const auto* text = std::get_if<TextMark>(&mark)) {
        return PlaceOfText(*text, metrics);
    }
    if (const auto* stroke = std::get_if<StrokeMark>(&mark)) {
        return QRectF(QPointF(stroke->x1, stroke->y1), QPointF(stroke->x2, stroke->y2))
            .normalized()
            .adjusted(-1, -1, 1, 1);
    }
    const auto& image = std::get<ImageMark>(mark);
    return {QPointF(image.x, image.y), QSizeF(kCheckMark)};
}

/// Its sign leans over the end of its cell, and its bar too.
bool HasRoot(const std::vector<Mark>& marks) {
    return std::any_of(marks.begin(), marks.end(), [](const Mark& mark) {
        const auto* text = std::get_if<TextMark>(&mark);
        return text != nullptr && text->text == "~";
    });
}

QRectF PlaceOf(const std::vector<Mark>& marks, const FontMetrics& metrics) {
    QRectF place;
    for (const Mark& mark : marks) {
        place |= PlaceOf(mark, metrics);
    }
    return place.adjusted(-kPad, -kPad, HasRoot(marks) ? kRootPad : kPad, kPad);
}

/// The marks so many times as large. Letters that the painter has to scale come out bolder than the
/// text beside them, as their strokes were strengthened for the smaller size.
std::vector<Mark> Enlarged(std::vector<Mark> marks, qreal times) {
    for (Mark& mark : marks) {
        if (auto* text = std::get_if<TextMark>(&mark)) {
            text->x *= times;
            text->y *= times;
            text->font.size *= times;
        } else if (auto* stroke = std::get_if<StrokeMark>(&mark)) {
            for (double* length :
                 {&stroke->x1, &stroke->y1, &stroke->x2, &stroke->y2, &stroke->width}) {
                *length *= times;
            }
        }
    }
    return marks;
}

/// Smaller where this place of a sheet would not fit.
HelpPictures::Look Fitted(HelpPictures::Look look, const QRectF& place) {
    look.scale = std::min(look.scale, look.room / place.width());
    return look;
}

/// What the painter draws of this place of a sheet.
template <class Paint>
QImage Pictured(const QRectF& place, const HelpPictures::Look& look, Paint paint) {
    const qreal pixels = look.scale * look.pixelRatio;
    QImage image((place.size() * pixels).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(pixels, pixels);
    painter.translate(-place.topLeft());
    paint(painter);
    painter.end();
    image.setDevicePixelRatio(look.pixelRatio);
    return image;
}

void PaintEntryPicture(QPainter& painter, const EntryLayout& layout,
                       const HelpPictures::Look& look) {
    const QSize size(kDrawingWidth, kPictureBox.height);
    for (const std::string_view key : {layout.picture, layout.overlay}) {
        if (!key.empty()) {
            painter.drawPixmap(layout.pictureX, kPictureBox.y,
                               Artwork(ToQString(key), size, look.scale * look.pixelRatio));
        }
    }
}

/// Emphasis keeps its red on paper; on a page it is told by the ink around it alone.
void Recolor(std::vector<Mark>& marks, Color ink) {
    for (Mark& mark : marks) {
        if (auto* text = std::get_if<TextMark>(&mark)) {
            text->color = text->color == kBlack ? ink : text->color;
        }
    }
}

}  // namespace

QImage HelpPictures::Picture(const QUrl& address, const Look& look) {
    const QString path = address.path(QUrl::FullyDecoded);
    if (address.scheme() == QLatin1String("math")) {
        return Mathematics(path, look);
    }
    const TopicText* topic = TextOf(path);
    if (topic != nullptr && address.scheme() == QLatin1String("entry")) {
        return Entry(*topic, look);
    }
    if (topic != nullptr && address.scheme() == QLatin1String("working")) {
        return Working(*topic, look);
    }
    if (topic != nullptr && address.scheme() == QLatin1String("number-line")) {
        return NumberLine(*topic, look);
    }
    return {};
}

const TopicText* HelpPictures::TextOf(const QString& page) {
    if (texts.empty()) {
        for (TopicText& text : ReadTopicTexts(ReadHelpFile("topics.txt"))) {
            texts.emplace(PageName(text.caption), std::move(text));
        }
    }
    const auto text = texts.find(page.toStdString());
    return text == texts.end() ? nullptr : &text->second;
}

QImage HelpPictures::Mathematics(const QString& address, const Look& look) const {
    const QString ink = address.section(u'/', 0, 0);
    const std::string line = address.section(u'/', 1).toStdString();
    EndlessSheet sheet(metrics);
    sheet.Current().CurrentY = kHeadroom;
    SilentLearner nobody;
    const auto end =
        DrawMathLine(Characters(line), LoneLine(std::min(kLongestRow, look.room / look.scale)),
                     ink == QLatin1String("blue"), sheet, nobody);
    std::vector<Mark> marks = sheet.Current().Marks();
    Recolor(marks, ink == QLatin1String("page")   ? FromQColor(look.pageInk)
                   : ink == QLatin1String("blue") ? kBlue
                                                  : kBlack);
    QRectF place = PlaceOf(marks, metrics);
    if (end) {
        const double baseline = end->y + metrics.Ascent(SheetFont());
        const double middle = baseline - look.sink / look.scale;
        const double half = std::max(middle - place.top(), place.bottom() - middle);
        place.setTop(middle - half);
        place.setBottom(middle + half);
    }
    return Pictured(place, look, [&](QPainter& painter) {
        const qreal pixels = look.scale * look.pixelRatio;
        painter.scale(1 / pixels, 1 / pixels);
        PaintMarks(painter, Enlarged(marks, pixels), metrics);
    });
}

QImage HelpPictures::Entry(const TopicText& topic, const Look& look) const {
    Problem problem;
    ChooseTopicForHelp(topic.caption, problem);
    problem.boxes = topic.boxes;
    QWidget sheet;
    sheet.resize(kEntrySheet);
    const EntryForm form(problem, &sheet);
    const QRect place = sheet.childrenRect().adjusted(-kEntryPad, -kEntryPad, kEntryPad, kEntryPad);
    // The form would paint its drawing for the screen's size and have it scaled.
    if (auto* picture = sheet.findChild<QWidget*>(QStringLiteral("Picture3"))) {
        picture->hide();
    }
    Look smaller = look;
    smaller.scale *= kEntryScale;
    smaller = Fitted(smaller, place);
    return Pictured(place, smaller, [&](QPainter& painter) {
        PaintEntryPicture(painter, *FindEntryLayout(problem.topic.ProblemType), smaller);
        sheet.render(&painter, {}, {}, QWidget::DrawChildren);
    });
}

QImage HelpPictures::Working(const TopicText& topic, const Look& look) const {
    const WorkedExample example(topic, metrics);
    const std::vector<Mark>& marks = example.Drawing().Marks();
    const QRectF place = PlaceOf(marks, metrics);
    const Look fitted = Fitted(look, place);
    return Pictured(place, fitted, [&](QPainter& painter) {
        PaintMarks(painter, marks, metrics, DrawCheckMark(fitted.scale * fitted.pixelRatio));
    });
}

QImage HelpPictures::NumberLine(const TopicText& topic, const Look& look) const {
    const WorkedExample example(topic, metrics);
    const auto& line = example.NumberLine();
    if (!line) {
        return {};
    }
    EndlessSheet sheet(metrics);
    DrawNumberLine(sheet.Current(), line->A, line->B);
    const std::vector<Mark>& marks = sheet.Current().Marks();
    const QRectF place = PlaceOf(marks, metrics);
    return Pictured(place, Fitted(look, place),
                    [&](QPainter& painter) { PaintMarks(painter, marks, metrics); });
}

}  // namespace numerello
