#include "app/solvers.h"
#include "catalogue/box_keys.h"
#include "catalogue/guided_input.h"
#include "cli/answering_learner.h"
#include "cli/mark_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"
#include "core/text.h"
#include "worksheet/number_line.h"

namespace numerello {

namespace {

constexpr std::size_t kBoxCount = 6;
constexpr std::size_t kListCount = 3;
constexpr long kTopListRow = 6;

/// What a request has the learner enter.
struct Entry {
    std::string problem;
    std::vector<std::string> boxes;
    bool filled = false;
    std::vector<long> lists;
};

Entry ReadEntry(Fields& fields) {
    Entry entry;
    entry.problem = fields.String("problem", "");
    entry.boxes = fields.Strings("boxes", kBoxCount);
    entry.filled = fields.Bool("filled", false);
    entry.lists = fields.Integers("lists", kListCount, EntryBoxes::kNoChoice, kTopListRow);
    if (entry.problem.find(kBackspace) != std::string::npos) {
        throw BadRequest("\"problem\" holds a Backspace");
    }
    return entry;
}

/// Types the line; the keys that were refused go to `refused`.
void TypeLine(Problem& problem, std::string_view text, Json& refused) {
    int at = 0;
    for (const std::string& key : Characters(text)) {
        const bool judged = IsJudged(problem, key);
        Form_KeyPress(problem, key);
        if (!problem.input.KeyAccepted) {
            refused.push_back(
                {{"at", at}, {"key", key}, {"why", judged ? problem.input.InputError : ""}});
        }
        ++at;
    }
}

void TypeBox(Problem& problem, int box, std::string_view text, Json& refused) {
    int at = 0;
    for (const std::string& key : Characters(text)) {
        if (!BoxKey(problem, box, key)) {
            refused.push_back({{"at", at}, {"key", key}, {"why", ""}, {"box", box}});
        }
        ++at;
    }
}

/// Enters everything; returns the refused keys.
Json Enter(Problem& problem, const Entry& entry) {
    Json refused = Json::array();
    TypeLine(problem, entry.problem, refused);
    for (std::size_t i = 0; i < entry.boxes.size(); ++i) {
        if (entry.filled) {
            problem.boxes.Text[i] = entry.boxes[i];
        } else {
            TypeBox(problem, static_cast<int>(i) + 1, entry.boxes[i], refused);
        }
    }
    for (std::size_t i = 0; i < entry.lists.size(); ++i) {
        problem.boxes.ListIndex[i] = static_cast<int>(entry.lists[i]);
    }
    CheckBoxesReady(problem);
    return refused;
}

Json Lines(const StepLog& log) {
    Json lines = Json::array();
    for (int i = 1; i < log.StepCount; ++i) {
        lines.push_back({{"text", log.StepText[i]}, {"note", log.StepNote[i]}});
    }
    return lines;
}

/// What the topic draws beside its lines.
Json Drawing(const Problem& problem) {
    Json marks = Json::array();
    if (const auto& line = problem.playback.NumberLine) {
        const PlainMetrics metrics;
        Surface sheet(metrics, {std::string(kSheetFace), 12});
        DrawNumberLine(sheet, line->A, line->B);
        for (const Mark& mark : sheet.Marks()) {
            marks.push_back(MarkFields(mark));
        }
    }
    return marks;
}

/// The equation that is to be drawn, as its cells hold it.
std::string EquationText(const TypedProblem& typed) {
    std::string text;
    for (int i = 0; i <= TypedProblem::kTopCell && !typed.ExprVariants[i].empty(); ++i) {
        text += typed.ExprVariants[i];
    }
    return text;
}

/// The graph request as a playback to the end leaves it.
Json Graph(const Problem& problem) {
    const GraphRequest& graph = problem.graph;
    if (graph.GraphMode == 0) {
        return nullptr;
    }
    return {{"mode", graph.GraphMode},         {"x1", JsonNumber(graph.GraphX1)},
            {"y1", JsonNumber(graph.GraphY1)}, {"x2", JsonNumber(graph.GraphX2)},
            {"y2", JsonNumber(graph.GraphY2)}, {"equation", EquationText(problem.typed)}};
}

void RequireSolver(const Problem& problem) {
    if (AllSolvers().Find(problem.topic.ProblemType) == nullptr) {
        throw BadRequest(Text("solving \"", problem.topic.TopicTitle, "\" is not built yet"));
    }
}

}  // namespace

void SolveRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const Entry entry = ReadEntry(fields);
    AnsweringLearner learner(fields.Strings("answers", std::nullopt));
    fields.RejectOthers();
    RequireSolver(problem);

    Json refused = Enter(problem, entry);
    const bool solvable = problem.controls.SolveEnabled;
    std::optional<FailureKind> failure;
    if (solvable) {
        Stage noStage;
        failure = compute_Click(problem, AllSolvers(), learner, noStage);
    }
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["problem"] = problem.typed.ProblemText;
    answer["refused"] = std::move(refused);
    answer["solvable"] = solvable;
    answer["lines"] = Lines(problem.log);
    answer["messages"] = learner.Messages();
    answer["prompts"] = learner.Prompts();
    answer["failure"] = failure ? Json(FailureName(*failure)) : Json(nullptr);
    answer["drawing"] = Drawing(problem);
    answer["graph"] = Graph(problem);
}

}  // namespace numerello
