#include "help/what_to_type.h"

#include <algorithm>
#include <array>
#include <optional>

#include "catalogue/box_keys.h"
#include "catalogue/entry_layouts.h"
#include "catalogue/guided_input.h"
#include "catalogue/instructions.h"
#include "core/number.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "help/box_names.h"
#include "help/set_text.h"
#include "help/worked_example.h"

namespace numerello {

namespace {

/// Shown where the instruction ends in a number made up on the spot.
constexpr int kExampleNumber = 12;
constexpr int kManyKeys = 40;

struct Key {
    std::string_view key;
    std::string_view text;  ///< HTML
};

constexpr std::array kKeys{
    Key{"2", "the digits <code>0</code> to <code>9</code>"},
    Key{".", "the decimal point <code>.</code>"},
    Key{"+", "<code>+</code>"},
    Key{"-", "<code>-</code>"},
    Key{"*", "<code>*</code> to multiply"},
    Key{"/", "<code>/</code> for a fraction or to divide"},
    Key{"^", "<code>^</code> for an exponent"},
    Key{"~", "<code>~</code> for a square root"},
    Key{"|", "<code>|</code> for an absolute value"},
    Key{"(", "the parentheses <code>(</code> and <code>)</code>"},
    Key{"=", "the equal sign <code>=</code>"},
    Key{"x", "letters"},
    Key{",", "the comma <code>,</code>"},
    Key{":", "the colon <code>:</code>"},
    Key{"%", "the percent sign <code>%</code>"},
};

/// "a", "a and b", "a, b and c".
std::string Listed(const std::vector<std::string>& items) {
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += i == 0 ? "" : i + 1 == items.size() ? " and " : ", ";
        text += items[i];
    }
    return text;
}

bool Typed(Problem& problem, std::string_view key) {
    Form_KeyPress(problem, key);
    return problem.input.KeyAccepted;
}

/// Whether the key is taken anywhere while the example is typed.
bool IsTaken(Problem problem, std::string_view example, std::string_view key) {
    for (const std::string& next : Characters(example)) {
        if (Problem tried = problem; Typed(tried, key)) {
            return true;
        }
        Typed(problem, next);
    }
    return Typed(problem, key);
}

std::string KeysOfLine(const Problem& problem, std::string_view example) {
    std::vector<std::string> keys;
    for (const Key& each : kKeys) {
        // The filter takes bars there too, but no number to be rounded has any.
        const bool useless = problem.topic.ProblemType == kRounding && each.key == "|";
        if (!useless && IsTaken(problem, example, each.key)) {
            keys.emplace_back(each.text);
        }
    }
    return Text("The keys are ", Listed(keys), ".");
}

/// How many of these keys the line takes one after the other behind a beginning.
int AcceptedOnLine(Problem problem, std::string_view beginning, std::string_view key) {
    for (const std::string& each : Characters(beginning)) {
        if (!Typed(problem, each)) {
            return 0;
        }
    }
    int accepted = 0;
    while (accepted < kManyKeys && Typed(problem, key)) {
        ++accepted;
    }
    return accepted;
}

std::string Counted(int count, std::string_view one, std::string_view many) {
    return Text(WholeText(count), " ", count == 1 ? one : many);
}

void AddNumberLimits(const Problem& problem, std::vector<std::string>& sentences) {
    for (const std::string_view beginning : {"", "(", "|"}) {
        const int digits = AcceptedOnLine(problem, beginning, "2");
        if (digits == 0 || digits == kManyKeys) {
            continue;
        }
        const int decimals = AcceptedOnLine(problem, Text(beginning, "2."), "2");
        sentences.push_back(Text("A number may have up to ", Counted(digits, "digit", "digits"),
                                 decimals == 0 ? "."
                                               : Text(", and up to ", WholeText(decimals),
                                                      " behind the decimal point.")));
        return;
    }
}

void AddLetterLimit(int letters, std::vector<std::string>& sentences) {
    if (letters == 1) {
        sentences.emplace_back("The problem may have one letter, the same wherever it stands.");
    } else if (letters > 1) {
        sentences.push_back(
            Text("The problem may have up to ", WholeText(letters), " different letters."));
    }
}

bool BoxTakes(Problem problem, int box, std::string_view first, std::string_view key) {
    return (first.empty() || BoxKey(problem, box, first)) && BoxKey(problem, box, key);
}

/// Where a sign other than a digit may stand; empty when nowhere.
std::string BoxesThatTake(const EntryLayout& layout, const Problem& problem, std::string_view what,
                          std::string_view first, std::string_view key) {
    std::vector<std::string> names;
    for (const EntryBoxLayout& box : layout.boxes) {
        if (BoxTakes(problem, box.number, first, key)) {
            names.push_back(Text("<b>", BoxName(box), "</b>"));
        }
    }
    if (names.empty()) {
        return "";
    }
    if (layout.boxes.size() == 1) {
        return Text(what, " may be typed too.");
    }
    return names.size() == layout.boxes.size()
               ? Text(what, " may be typed in every box.")
               : Text(what, " may be typed in ", Listed(names), ".");
}

std::string Filling(Readiness readiness, std::size_t boxes) {
    switch (readiness) {
        case Readiness::AllBoxes:
            return boxes == 1 ? "" : "Fill in every box.";
        case Readiness::AllButOne:
            return "Leave exactly one box empty: that number is found.";
        case Readiness::SimilarTriangles:
            return "Fill in the first triangle and at least one side of the second.";
        case Readiness::ValueAndUnits:
            return "Type the number, then choose the unit that it has in the first list and the "
                   "unit that you want in the second.";
        case Readiness::Line:
            break;
    }
    return "Choose from the list beside the line how far to round.";
}

void AddBoxes(const EntryLayout& layout, const Problem& problem,
              std::vector<std::string>& sentences) {
    std::vector<std::string> names;
    for (const EntryBoxLayout& box : layout.boxes) {
        names.push_back(Text("<b>", BoxName(box), "</b>"));
    }
    if (names.size() > 1) {
        sentences.push_back(Text("The boxes are ", Listed(names), "."));
    }
    sentences.push_back(Filling(layout.readiness, layout.boxes.size()));
    if (names.empty()) {
        return;
    }
    sentences.emplace_back(names.size() == 1 ? "The box takes digits." : "The boxes take digits.");
    sentences.push_back(BoxesThatTake(layout, problem, "A decimal point", "2", "."));
    // A shape has no measure below zero.
    if (layout.picture.empty()) {
        sentences.push_back(
            BoxesThatTake(layout, problem, "A minus sign in front of a number", "", "-"));
    }
}

}  // namespace

std::vector<std::string> WhatToType(const Topic& topic, std::string_view example) {
    Problem problem;
    ChooseTopicForHelp(topic.caption, problem);
    std::vector<std::string> sentences{
        MathSentence(InstructionFor(topic.code, kExampleNumber), Ink::Page)};
    if (IsTypedOnLine(topic.code)) {
        sentences.push_back(KeysOfLine(problem, example));
        AddNumberLimits(problem, sentences);
        AddLetterLimit(problem.topic.MaxVariables, sentences);
    }
    if (const EntryLayout* layout = FindEntryLayout(topic.code)) {
        AddBoxes(*layout, problem, sentences);
    }
    std::erase(sentences, "");
    return sentences;
}

}  // namespace numerello
