#include "catalogue/examples/example_click.h"
#include "catalogue/guided_input.h"
#include "cli/draw_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "cli/topic_fields.h"

namespace numerello {

namespace {

/// Takes an example as the entry form does, and leaves it unsolved.
class UnsolvedForm : public FillingForm {
  public:
    explicit UnsolvedForm(Problem& problem) : problem(problem) {}

    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override {}

  private:
    Problem& problem;
};

}  // namespace

void ExampleProblemRequest(Fields& fields, Json& answer) {
    Problem problem;
    ChooseTopic(fields, problem);
    ApplySettings(fields, problem.settings);
    const bool complex = fields.Bool("complex", false);
    RequestedDraws requested(fields);
    fields.RejectOthers();

    UnsolvedForm form(problem);
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
