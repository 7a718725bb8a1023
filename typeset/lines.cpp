#include "typeset/lines.h"

#include <utility>

#include "core/text.h"
#include "typeset/math_line.h"
#include "typeset/math_pen.h"

namespace numerello {

namespace {

/// The line's end lies a little inside the last character's cell.
constexpr double kEndInset = 4;

/// One surface whose next page is its own affair.
class OneSurface : public Sheets {
  public:
    explicit OneSurface(Surface& surface) : surface(surface) {}

    Surface& Current() override { return surface; }
    void Turn() override { surface.NewPage(); }

  private:
    Surface& surface;
};

MathPen PaperPen(PaperSheets& sheets) {
    return {sheets.Current(), kPaperVariant, kPaperVariant.base};
}

MathPen ExplanationPen(Surface& window) {
    return {window, kExplanationVariant, kExplanationVariant.base};
}

MathPen PrintPen(Surface& target, bool blue) {
    return {target, kPrintVariant, kPrintVariant.BaseColor(blue)};
}

MathPen PreviewPen(Sheets& pages, bool blue) {
    return {pages.Current(), kPreviewVariant, kPreviewVariant.BaseColor(blue)};
}

}  // namespace

void FPrintLine(std::string_view Text, bool ShowBlinker, PaperSheets& sheets, Playback& playback,
                Learner& learner) {
    const auto end = DrawMathLine(Characters(Text), kPaperVariant, false, sheets, learner);
    if (!end) {
        return;
    }
    playback.LineEndX = end->x - kEndInset;
    playback.LineEndY = end->y;
    if (ShowBlinker) {
        sheets.PlaceBlinker();
    }
}

void FPrintRoot(std::string_view Body, PaperSheets& sheets) {
    PaperPen(sheets).Root(Body);
}

void FPrintExponent(std::string_view Body, PaperSheets& sheets) {
    PaperPen(sheets).Exponent(Body);
}

void FPrintFraction(std::string_view Body, PaperSheets& sheets) {
    PaperPen(sheets).Fraction(Body);
}

void ExplainLine(std::string_view Text, Surface& window, Learner& learner) {
    ExplainLine(Characters(Text), window, learner);
}

void ExplainLine(std::vector<std::string> Characters, Surface& window, Learner& learner) {
    OneSurface sheets(window);
    DrawMathLine(std::move(Characters), kExplanationVariant, false, sheets, learner);
}

void ExplainRoot(std::string_view Body, Surface& window) {
    ExplanationPen(window).Root(Body);
}

void ExplainExponent(std::string_view Body, Surface& window) {
    ExplanationPen(window).Exponent(Body);
}

void ExplainFraction(std::string_view Body, Surface& window) {
    ExplanationPen(window).Fraction(Body);
}

void PrintLine(std::string_view Text, Surface& Target, bool Blue, Learner& learner) {
    OneSurface sheets(Target);
    DrawMathLine(Characters(Text), kPrintVariant, Blue, sheets, learner);
}

void PrintRoot(std::string_view Body, Surface& Target, bool Blue) {
    PrintPen(Target, Blue).Root(Body);
}

void PrintExponent(std::string_view Body, Surface& Target) {
    PrintPen(Target, false).Exponent(Body);
}

void PrintFraction(std::string_view Body, Surface& Target, bool Blue) {
    PrintPen(Target, Blue).Fraction(Body);
}

void PreviewLine(std::string_view Text, Sheets& Pages, bool Blue, Learner& learner) {
    DrawMathLine(Characters(Text), kPreviewVariant, Blue, Pages, learner);
}

void PreviewRoot(std::string_view Body, Sheets& Pages, bool Blue) {
    PreviewPen(Pages, Blue).Root(Body);
}

void PreviewExponent(std::string_view Body, Sheets& Pages) {
    PreviewPen(Pages, false).Exponent(Body);
}

void PreviewFraction(std::string_view Body, Sheets& Pages, bool Blue) {
    PreviewPen(Pages, Blue).Fraction(Body);
}

}  // namespace numerello
