#include "columns/steps.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "columns/addition.h"
#include "columns/division.h"
#include "columns/multiplication.h"
#include "columns/subtraction.h"
#include "core/failure.h"
#include "core/topic_codes.h"
#include "typeset/variants.h"

namespace numerello {

namespace {

struct Operation {
    int ProblemType;
    bool ColumnRequest::*flag;
    void (*procedure)(std::string Top, std::string Bottom, ColumnRun& run);
    double highest;  ///< Y of the topmost mark that the layout can hold
};

// A product's highest carry belongs to its eighth row: no later one is drawn.
constexpr std::array kOperations{
    Operation{kAddition, &ColumnRequest::ColumnAdd, ColumnAddition, 283},
    Operation{kSubtraction, &ColumnRequest::ColumnSubtract, ColumnSubtraction, 300},
    Operation{kMultiplication, &ColumnRequest::ColumnMultiply, ColumnMultiplication, 250},
    Operation{kDivision, &ColumnRequest::ColumnDivide, LongDivision, 280},
};

// A digit and a line on the sheet.
constexpr double kDigitWidth = kCharacterPerPoint * kSheetPoints;
constexpr double kLineHeight = kLinePerPoint * kSheetPoints;

/// Boxes are typed as digits, but a saved problem may hold anything.
void RequireDigits(const std::string& number) {
    if (number.find_first_not_of("0123456789") != std::string::npos) {
        throw Failure(FailureKind::Format);
    }
}

void Draw(const Operation& operation, const std::string& Top, const std::string& Bottom,
          ColumnRun& run) {
    RequireDigits(Top);
    RequireDigits(Bottom);
    operation.procedure(Top, Bottom, run);
}

/// As far below the pen as a line is high, in the surface's own units.
ColumnPlace PlaceBelow(Surface& Target, const Operation& operation) {
    const double top = Target.CurrentY;
    Target.SetFontSize(ColumnPen::kDigitSize);
    Target.Print("", Surface::LineEnd::Break);
    ColumnPlace place;
    place.xUnit = Target.TextWidth("0") / kDigitWidth;
    place.yUnit = (Target.CurrentY - top) / kLineHeight;
    place.top = Target.CurrentY - operation.highest * place.yUnit;
    return place;
}

}  // namespace

void StepColumns(Problem& problem, Surface& page, Learner& learner, std::function<void()> Finish) {
    const auto* const asked =
        std::find_if(kOperations.begin(), kOperations.end(),
                     [&](const Operation& each) { return problem.columns.*each.flag; });
    if (asked == kOperations.end()) {
        return;
    }
    page.Cls();
    ColumnRun run{problem.log,         problem.playback, problem.settings.mnuShowStep,
                  ColumnPen(page, {}), learner,          std::move(Finish)};
    Draw(*asked, problem.boxes.Text[0], problem.boxes.Text[1], run);
}

void PrintColumns(const Problem& problem, Surface& Target, Learner& learner) {
    const auto* const operation = std::find_if(
        kOperations.begin(), kOperations.end(),
        [&](const Operation& each) { return each.ProblemType == problem.topic.ProblemType; });
    if (operation == kOperations.end()) {
        return;
    }
    StepLog notes;
    Playback playback;
    playback.ShowAllSteps = -1;
    ColumnRun run{notes,   playback, false, ColumnPen(Target, PlaceBelow(Target, *operation)),
                  learner, [] {}};
    Draw(*operation, problem.columns.ColumnTop, problem.columns.ColumnBottom, run);
}

}  // namespace numerello
