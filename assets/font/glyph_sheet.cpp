// Paints every glyph of the sheets' face and a page of set lines, to be looked at:
// glyph_sheet OUTPUT.png [SCALE]

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "output/print_scale.h"
#include "typeset/sample.h"
#include "typeset/variants.h"
#include "ui/colors.h"
#include "ui/font_metrics.h"
#include "ui/surface_painter.h"

namespace {

using namespace numerello;

constexpr int kWidth = 800;
constexpr int kPitch = 46;
constexpr QColor kRule(0xC9, 0xDD, 0xF2);
constexpr QColor kMargin(0xE8, 0xA0, 0xA0);

constexpr std::array kLines{
    "12+34-5=41   0123456789   (x-y)(p+q)=g   |x|<y   a>b   fj,;: Qq",
    "x^2^-[5]x+6=0   y^12^   2x^-3^+[3x^2^]   10^5^   (a+b)^2^",
    "#1/2#+#3/4#=#5/4#   #1/25#   #1/256#   #y/2#+#(x+2)/gp#-#x^2^/y^3^#   #12/3+4#a",
    "~4~=2   ~x^2^+y^2^~   ~25~+~144~=5+12   2~3~   ~(x+1)~   a~b~c",
    "~#1/2#~   ~#1/2#+3~=0   3~#x^2^/y^2^#~   ~#25/144#~=#5/12#",
    "#~3~/2#   #1/~2~#   #~x^2^~/~y~#   #2~5~+1/~3~#",
    "~#1/2#+#3/4#~   ~(#1/2#)~   [~16~]=4   ~[16]~=4   #[3]/[4]#   [#3/4#]",
    "2` r   `r^2^=12`   x=#-b\\~b^2^-4ac~/2a#   3$4   12{4=3   5\\2   `$3   8{2",
    "2*3=6   7-3   -7+3   a<b   c>d   3.14   100%   \"yes\"   one: two; three!   3-1/2   what?",
    "The quick brown fox jumps over the lazy dog; Pack my box with five dozen jugs, Quincy. "
    "0123456",
    "123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123"
    "4",
};

class Sheet {
  public:
    Sheet(QPainter& painter, double top) : painter(painter), top(top) {}

    void Caption(double x, double y, const std::string& text) {
        Marks({TextMark{text, x, y, Font{"Arial", 7.5}, 0x808080}},
              FontMetrics(FontMetrics::Medium::Print));
    }

    void Glyph(double x, double y, const std::string& text, double size) {
        Marks({TextMark{text, x, y, Font{std::string(kSheetFace), size}, kBlack}},
              FontMetrics(FontMetrics::Medium::Sheet));
    }

    void Line(const SampleRequest& request, FontMetrics::Medium medium, double enlarged = 1) {
        const FontMetrics metrics(medium);
        std::vector<Mark> marks;
        for (auto& placed : TypesetSample(request, metrics).marks) {
            marks.push_back(std::move(placed.mark));
        }
        Marks(marks, metrics, enlarged);
    }

    void Marks(const std::vector<Mark>& marks, const FontMetrics& faces, double enlarged = 1) {
        painter.save();
        painter.translate(0, top);
        painter.scale(enlarged, enlarged);
        PaintMarks(painter, marks, faces);
        painter.restore();
    }

    void Rules(int rows, double first) {
        painter.save();
        painter.translate(0, top);
        for (int row = 0; row < rows; ++row) {
            painter.fillRect(QRectF(0, first + row * kPitch, kWidth, 1), kRule);
        }
        painter.fillRect(QRectF(60, first - kPitch, 1, rows * kPitch), kMargin);
        painter.restore();
    }

  private:
    QPainter& painter;
    double top;
};

std::vector<char32_t> AllCharacters() {
    const QRawFont face = FontMetrics(FontMetrics::Medium::Sheet).Face(SheetFont());
    std::vector<char32_t> characters;
    for (char32_t character = U'!'; character < 0x3000; ++character) {
        if (face.supportsCharacter(character)) {
            characters.push_back(character);
        }
    }
    return characters;
}

double PaintTable(QPainter& painter, double top) {
    constexpr int kColumns = 16;
    constexpr int kCellWidth = kWidth / kColumns;
    constexpr int kCellHeight = 48;
    Sheet sheet(painter, top);
    int column = 0;
    double y = 4;
    for (const char32_t character : AllCharacters()) {
        if (column == kColumns) {
            column = 0;
            y += kCellHeight;
        }
        const double x = 10 + column++ * kCellWidth;
        sheet.Glyph(x, y, QString::fromUcs4(&character, 1).toStdString(), 18);
        sheet.Caption(x, y + 31, QString::number(character, 16).toUpper().toStdString());
    }
    return top + y + kCellHeight + 8;
}

double PaintEnlarged(QPainter& painter, double top) {
    constexpr double kTimes = 4;
    Sheet sheet(painter, top);
    const std::array samples{std::pair{2.0, "2~x^2^+y~"}, std::pair{66.0, "~#y/24#+3~"},
                             std::pair{118.0, "#y^2^/(b)#`3$4\\"}};
    for (const auto& [x, text] : samples) {
        SampleRequest request{TypesetTarget::Paper, text, x - 67 + 4, 0, {}, false};
        sheet.Line(request, FontMetrics::Medium::Sheet, kTimes);
    }
    return top + 70 * kTimes;
}

double PaintLines(QPainter& painter, double top) {
    Sheet sheet(painter, top);
    sheet.Rules(static_cast<int>(kLines.size()) + 2, 44);
    double y = 0;
    for (const char* line : kLines) {
        sheet.Line({TypesetTarget::Paper, line, 0, y, {}, false}, FontMetrics::Medium::Sheet);
        y += kPitch;
    }
    return top + y + 2 * kPitch;
}

/// A line as a printed page or its preview has it, the page's margins left out.
std::vector<Mark> PrintedLine(const SampleRequest& request, const FontMetrics& faces,
                              const PrintScale& scale) {
    std::vector<Mark> marks;
    for (const auto& placed : TypesetSample(request, ScaledMetrics(faces, scale)).marks) {
        TextMark mark = std::get<TextMark>(placed.mark);
        mark.x /= scale.across;
        mark.y /= scale.down;
        marks.emplace_back(mark);
    }
    return marks;
}

/// The other three targets, each with its own offsets.
double PaintVariants(QPainter& painter, double top) {
    constexpr const char* kText = "~x^2^+y~+~#1/24#~=#y^2^/(a+b)#+2~3~-`+[5]+~#y/2#+3~";
    Sheet sheet(painter, top);
    sheet.Caption(10, 0, "explanation");
    sheet.Line({TypesetTarget::Explanation, kText, 100, 10, {}, true},
               FontMetrics::Medium::Explanation);
    const FontMetrics faces(FontMetrics::Medium::Print);
    sheet.Caption(10, 60, "print");
    sheet.Marks(
        PrintedLine({TypesetTarget::Print, kText, 100, 35, {}, false}, faces, ScaleOfPrint(kA4)),
        faces);
    sheet.Caption(10, 120, "preview");
    sheet.Marks(PrintedLine({TypesetTarget::Preview, kText, 150, 100, {}, false}, faces,
                            ScaleOfPreview(kA4)),
                faces);
    return top + 180;
}

void PaintAll(QPainter& painter, double& height) {
    height = PaintLines(painter, 0);
    height = PaintEnlarged(painter, height);
    height = PaintVariants(painter, height + 20);
    height = PaintTable(painter, height);
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const double scale = arguments.value(2, "1").toDouble();
    if (arguments.size() < 2 || scale <= 0) {
        qCritical("usage: glyph_sheet OUTPUT.png [SCALE]");
        return 2;
    }
    if (!LoadSheetFont()) {
        qCritical("VantrelFont cannot be used");
        return 1;
    }
    double height = 0;
    for (int pass = 0; pass < 2; ++pass) {
        // The first pass finds out how high the picture is.
        QImage image(static_cast<int>(kWidth * scale), static_cast<int>(height * scale) + 1,
                     QImage::Format_RGB32);
        image.fill(kPaperColor);
        QPainter painter(&image);
        painter.scale(scale, scale);
        PaintAll(painter, height);
        painter.end();
        if (pass == 1 && !image.save(arguments[1])) {
            qCritical("the picture cannot be written");
            return 1;
        }
    }
    return 0;
}
