#include "catalogue/box_keys.h"

#include <algorithm>

#include "catalogue/entry_layouts.h"
#include "catalogue/guided_input.h"
#include "core/text.h"
#include "core/topic_codes.h"

namespace numerello {

namespace {

constexpr std::size_t kLengthLimit = 10;

bool PointAllowed(int code, int box) {
    const bool scientific = IsScientificBoxTopic(code);
    switch (box) {
        case 1:
            return !IsColumnTopic(code);
        case 2:
            return !IsColumnTopic(code) && !scientific;
        case 4:
            return !scientific;
        default:
            return false;
    }
}

bool MinusAllowed(int code, int box) {
    return box > 2 || !IsColumnTopic(code);
}

bool Fits(int code, int box, std::string_view text, std::string_view key) {
    if (text.size() >= kLengthLimit) {
        return false;
    }
    if (key == ".") {
        return PointAllowed(code, box) && text.find('.') == std::string_view::npos;
    }
    if (key == "-") {
        return MinusAllowed(code, box) && text.empty();
    }
    return IsDigit(key);
}

/// How the boxes of a layout are filled. What is neither empty nor a number is in the way.
struct Filling {
    int numbers = 0;
    int empty = 0;
    int others = 0;
};

Filling FillingOf(const EntryLayout& layout, const EntryBoxes& boxes) {
    Filling filling;
    for (const EntryBoxLayout& box : layout.boxes) {
        const std::string& text = boxes.Box(box.number);
        ++(text.empty() ? filling.empty : IsNumeric(text) ? filling.numbers : filling.others);
    }
    return filling;
}

/// The first triangle has to be complete; the second needs one side.
bool TrianglesReady(const EntryBoxes& boxes, const Filling& filling) {
    const bool firstIsComplete = std::all_of(boxes.Text.begin(), boxes.Text.begin() + 3, IsNumeric);
    return firstIsComplete && filling.numbers > 3 && filling.others == 0;
}

bool IsReady(const EntryLayout& layout, const EntryBoxes& boxes) {
    const Filling filling = FillingOf(layout, boxes);
    switch (layout.readiness) {
        case Readiness::AllBoxes:
            return filling.empty == 0 && filling.others == 0;
        case Readiness::AllButOne:
            return filling.empty == 1 && filling.others == 0;
        case Readiness::SimilarTriangles:
            return TrianglesReady(boxes, filling);
        case Readiness::ValueAndUnits:
            return filling.numbers == 1 && boxes.List(1) >= 0 && boxes.List(2) >= 0;
        case Readiness::Line:
            break;
    }
    return false;
}

}  // namespace

bool BoxKey(Problem& problem, int box, std::string_view key) {
    std::string& text = problem.boxes.Box(box);
    if (!problem.playback.TypingEnabled) {
        return false;
    }
    if (key == kBackspace) {
        if (!text.empty()) {
            text.pop_back();
        }
    } else if (Fits(problem.topic.ProblemType, box, text, key)) {
        text += key;
    } else {
        return false;
    }
    CheckBoxesReady(problem);
    return true;
}

void CheckBoxesReady(Problem& problem) {
    const int code = problem.topic.ProblemType;
    if (IsTypedOnLine(code)) {
        return;
    }
    const EntryLayout* layout = FindEntryLayout(code);
    problem.controls.SolveEnabled = layout != nullptr && IsReady(*layout, problem.boxes);
}

bool IsNumeric(std::string_view text) {
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const auto digits = std::count_if(text.begin(), text.end(), [](char c) { return IsDigit(c); });
    const auto points = std::count(text.begin(), text.end(), '.');
    return digits > 0 && points <= 1 && digits + points == static_cast<long>(text.size());
}

}  // namespace numerello
