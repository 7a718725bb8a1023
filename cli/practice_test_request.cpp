#include "cli/draw_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "core/failure.h"
#include "core/text.h"
#include "output/practice_test.h"
#include "output/test_headings.h"

namespace numerello {

namespace {

constexpr long kMostProblems = 200;

TestRow ReadRow(const Json& object) {
    Fields fields(object);
    if (!fields.Has("topic") || !fields.Has("count")) {
        throw BadRequest("a row needs \"topic\" and \"count\"");
    }
    TestRow row;
    row.topic = fields.String("topic", "");
    row.count = static_cast<int>(fields.Integer("count", {0, kMostProblems}, 0));
    row.complex = fields.Bool("complex", false);
    fields.RejectOthers();
    if (FindTestTopic(row.topic) == nullptr) {
        throw BadRequest(Text("unknown topic \"", row.topic, "\""));
    }
    return row;
}

std::vector<TestRow> ReadRows(Fields& fields) {
    std::vector<TestRow> rows;
    for (const Json* object : fields.Objects("rows", kTestRows)) {
        rows.push_back(ReadRow(*object));
    }
    if (rows.empty()) {
        throw BadRequest("\"rows\" must have one to ten entries");
    }
    return rows;
}

}  // namespace

void PracticeTestRequest(Fields& fields, Json& answer) {
    const std::vector<TestRow> rows = ReadRows(fields);
    AnswerSettings unused;
    ApplySettings(fields, unused);
    RequestedDraws requested(fields);
    fields.RejectOthers();

    PracticeTest test;
    Json failure;
    try {
        CreatePracticeTest(rows, test, requested.Draws(), requested.Steps());
    } catch (const Failure& full) {
        failure = FailureName(full.Kind());
    }
    answer["ok"] = true;
    answer["lines"] = test.Lines();
    answer["failure"] = std::move(failure);
}

}  // namespace numerello
