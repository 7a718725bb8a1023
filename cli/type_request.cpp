#include "catalogue/guided_input.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"
#include "core/text.h"

namespace numerello {

namespace {

Json TypeKey(Problem& problem, const std::string& key) {
    const bool judged = IsJudged(problem, key);
    Form_KeyPress(problem, key);
    return {{"key", key},
            {"accepted", problem.input.KeyAccepted},
            {"why", judged ? problem.input.InputError : ""},
            {"line", problem.typed.DisplayLine}};
}

}  // namespace

void TypeRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    if (!fields.Has("keys")) {
        throw BadRequest("\"keys\" is missing");
    }
    const std::string keys = fields.String("keys", "");
    fields.RejectOthers();

    Json judged = Json::array();
    for (const std::string& key : Characters(keys)) {
        judged.push_back(TypeKey(problem, key));
    }
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["keys"] = std::move(judged);
    answer["problem"] = problem.typed.ProblemText;
    answer["solvable"] = problem.controls.SolveEnabled;
}

}  // namespace numerello
