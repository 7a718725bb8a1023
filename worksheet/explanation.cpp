#include "worksheet/explanation.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "typeset/lines.h"
#include "typeset/notation_walk.h"
#include "typeset/variants.h"
#include "worksheet/explanation_rows.h"
#include "worksheet/shown_note.h"
#include "worksheet/spoken_line.h"

namespace numerello {

namespace {

const Font kFont{std::string(kExplanationVariant.face), kExplanationVariant.fontSize};

constexpr double kRoomInLines = 3.5;

constexpr double kRightOfLine = 54;
constexpr double kBelowLine = 2 * 60;  ///< twice the height of the window before it has a text
constexpr Explanation::Corner kStandardPlace{255, 70};

/// Passes on one message alone: a text of several rows is one text to its reader.
class FirstMessage : public Learner {
  public:
    explicit FirstMessage(Learner& learner) : learner(learner) {}

    void MessageBox(std::string_view title, std::string_view message) override {
        if (!std::exchange(told, true)) {
            learner.MessageBox(title, message);
        }
    }
    bool Confirm(std::string_view title, std::string_view question) override {
        return learner.Confirm(title, question);
    }
    std::optional<std::string> InputBox(std::string_view title, std::string_view prompt) override {
        return learner.InputBox(title, prompt);
    }

  private:
    Learner& learner;
    bool told = false;
};

}  // namespace

Explanation::Explanation(const Problem& problem, const TextMetrics& metrics, Learner& learner)
    : problem(problem), metrics(metrics), learner(learner), rows(metrics, kFont) {}

bool Explanation::Light_Click() {
    explainError = problem.controls.Light == EntryControls::LightPicture::Incorrect &&
                   !problem.input.InputError.empty();
    return explainError;
}

bool Explanation::HasNote() const {
    return !ShownNote(problem).empty();
}

std::string Explanation::TakeText() {
    std::string taken(explainError ? problem.input.InputError : ShownNote(problem));
    // Explanations exist in full at the highest detail alone.
    if (problem.settings.DetailLevel > 1 && taken != problem.input.InputError &&
        taken != problem.topic.InstructionText) {
        return "Select 'High' step-by-step detail for explanations.";
    }
    return taken;
}

void Explanation::ShowExplanation() {
    rows.Cls();
    text = TakeText();
    isRefusal = std::exchange(explainError, false);
    FirstMessage teller(learner);
    for (TextRow& row :
         ExplanationRows(isRefusal ? CharactersWithQuotedMarks(text) : Characters(text), kTextWidth,
                         metrics, kFont)) {
        // The denominators of the row before hang below it.
        rows.CurrentY = RowsHeight();
        ExplainLine(std::move(row), rows, teller);
    }
}

std::string Explanation::SpokenText() const {
    return isRefusal ? text : SpokenLine(text);
}

double Explanation::RowsWidth() const {
    double width = kTextWidth;
    for (const Mark& mark : rows.Marks()) {
        if (const auto* const piece = std::get_if<TextMark>(&mark)) {
            width = std::max(width, piece->x + metrics.Width(piece->text, piece->font));
        }
    }
    return width;
}

double Explanation::RowsHeight() const {
    double height = rows.CurrentY;
    for (const Mark& mark : rows.Marks()) {
        if (const auto* const piece = std::get_if<TextMark>(&mark)) {
            height = std::max(height, piece->y + metrics.LineHeight(kFont));
        }
    }
    return height;
}

double Explanation::Height() const {
    return rows.CurrentY + kRoomInLines * metrics.LineHeight(kFont);
}

bool Explanation::BelongsToStep() const {
    return text != problem.input.InputError && text != problem.topic.InstructionText;
}

Explanation::Corner Explanation::Place(const Sheet& current) const {
    if (!BelongsToStep()) {
        return {current.left + kStandardPlace.left, current.top + kStandardPlace.top};
    }
    return {current.left + problem.playback.LineEndX + kRightOfLine,
            current.top + problem.playback.LineEndY + kBelowLine};
}

}  // namespace numerello
