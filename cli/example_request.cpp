#include "catalogue/bare_form.h"
#include "catalogue/examples/example_click.h"
#include "cli/draw_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"

namespace numerello {

void ExampleProblemRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const bool complex = fields.Bool("complex", false);
    RequestedDraws requested(fields);
    fields.RejectOthers();

    BareForm form(problem);
    ExampleChop(GenerateExample(problem.topic, false, complex ? AnswerSettings::kComplex : 0,
                                requested.Draws()),
                problem, form);
    answer["ok"] = true;
    answer["code"] = problem.topic.ProblemType;
    answer["problem"] = problem.typed.ProblemText;
    answer["boxes"] = problem.boxes.Text;
    answer["lists"] = problem.boxes.ListIndex;
    answer["filled"] = true;
}

}  // namespace numerello
