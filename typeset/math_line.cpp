#include "typeset/math_line.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/text.h"
#include "typeset/math_pen.h"
#include "typeset/slack.h"

namespace numerello {

namespace {

class MathLine {
  public:
    MathLine(const TypesetVariant& variant, bool blue, Sheets& sheets, Learner& learner)
        : variant(variant), base(variant.BaseColor(blue)), sheets(sheets), learner(learner) {}

    void Start(bool hasSlash);
    NotationWalk Walk(std::vector<std::string> characters);
    void Pass(NotationWalk& walk);
    PenPosition End();

    void Report();

  private:
    void DrawPlain(const std::string& character);
    void PrintPiece(const std::string& piece);
    void Wrap();
    void TurnPage();

    Surface& Page() { return sheets.Current(); }

    const TypesetVariant& variant;
    Color base;
    Sheets& sheets;
    Learner& learner;
    double baseY = 0;
};

void MathLine::Start(bool hasSlash) {
    if (variant.freshPage && IsPast(Page().CurrentY, variant.freshPage->limit)) {
        sheets.Turn();
        Page().CurrentY = variant.freshPage->penY;
    }
    Surface& page = Page();
    page.Print(std::string(static_cast<std::size_t>(variant.marginBlanks), ' '));
    page.CurrentX += variant.startShift;
    page.CurrentY += (hasSlash ? variant.fractionDrop : variant.startDrop).At(page.FontSize());
    page.ForeColor = base;
    baseY = page.CurrentY;
}

NotationWalk MathLine::Walk(std::vector<std::string> characters) {
    if (characters.size() > kLineLimit) {
        Report();
        characters.resize(kLineLimit);
    }
    return NotationWalk(std::move(characters));
}

void MathLine::Pass(NotationWalk& walk) {
    bool taken = true;
    try {
        // Only afterwards is the pen put to the base: a marker is drawn where the pen was left.
        taken = MathPen(Page(), variant, base).TakeMarker(walk, "#^~[]");
    } catch (const Failure&) {
        Report();
    }
    Page().CurrentY = baseY;
    if (!taken) {
        DrawPlain(walk.Here());
        walk.Step();
    }
}

void MathLine::DrawPlain(const std::string& character) {
    if (variant.page && variant.page->test == PageRule::Test::BeforeCharacter &&
        IsPast(baseY, variant.page->limit)) {
        TurnPage();
    }
    PrintPiece(character);
    if (variant.wrap && IsPast(Page().CurrentX, variant.wrap->limit)) {
        Wrap();
    }
}

/// Only the sheets' face has a root sign. It leans over the end of its cell, so it gets the room
/// that a root gives it.
void MathLine::PrintPiece(const std::string& piece) {
    if (piece != kQuotedRoot) {
        Page().Print(piece);
        return;
    }
    Page().Print(piece.substr(0, 1));
    const double x = Page().CurrentX;
    Page().CurrentX -= variant.plainRoot.back;
    Page().SetFontName(kSheetFace);
    Page().Print(piece.substr(1, 1));
    Page().SetFontName(variant.face);
    Page().CurrentX = x;
    Page().Print("  ");
    Page().Print(piece.substr(2));
}

void MathLine::Wrap() {
    Page().Print("...");
    Page().CurrentX = variant.wrap->x;
    baseY += variant.wrap->baseStep;
    if (variant.wrap->movesPen) {
        Page().CurrentY = baseY;
    }
    if (variant.page && variant.page->test == PageRule::Test::AfterWrap &&
        IsPast(baseY, variant.page->limit)) {
        TurnPage();
    }
}

void MathLine::TurnPage() {
    sheets.Turn();
    Surface& page = Page();
    page.CurrentY = variant.page->penY.value_or(page.CurrentY);
    page.CurrentX = variant.page->x;
    baseY = variant.page->baseY;
}

PenPosition MathLine::End() {
    const PenPosition end{Page().CurrentX, Page().CurrentY};
    Page().Print(" ", Surface::LineEnd::Break);
    return end;
}

void MathLine::Report() {
    learner.MessageBox("", "An error occurred while displaying information.");
}

}  // namespace

std::optional<PenPosition> DrawMathLine(std::vector<std::string> characters,
                                        const TypesetVariant& variant, bool blue, Sheets& sheets,
                                        Learner& learner) {
    MathLine line(variant, blue, sheets, learner);
    try {
        line.Start(std::find(characters.begin(), characters.end(), "/") != characters.end());
        for (NotationWalk walk = line.Walk(std::move(characters)); !walk.AtEnd();) {
            line.Pass(walk);
        }
        return line.End();
    } catch (const Failure&) {
        line.Report();
        return std::nullopt;
    }
}

}  // namespace numerello
