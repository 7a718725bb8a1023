#include "cli/requests.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace numerello {

namespace {

struct Handler {
    std::string_view name;
    void (*handle)(Fields&, Json&);
};

constexpr std::array kHandlers{
    Handler{"solve", SolveRequest},
    Handler{"columns", ColumnsRequest},
    Handler{"typeset", TypesetRequest},
    Handler{"topics", TopicsRequest},
    Handler{"type", TypeRequest},
    Handler{"example", ExampleProblemRequest},
    Handler{"practice-test", PracticeTestRequest},
    Handler{"graph", GraphingRequest},
};

void Handle(const Json& request, Json& answer) {
    Fields fields(request);
    fields.Has("id");
    const std::string name = fields.String("do", "");
    const auto* const handler =
        std::find_if(kHandlers.begin(), kHandlers.end(),
                     [&name](const auto& each) { return each.name == name; });
    if (handler != kHandlers.end()) {
        handler->handle(fields, answer);
        return;
    }
    throw BadRequest(fields.Has("do") ? Text("unknown request \"", name, "\"")
                                      : "\"do\" is missing");
}

}  // namespace

Json Answer(const Json& request, const Json& id) {
    try {
        Json answer;
        answer["id"] = id;
        Handle(request, answer);
        return answer;
    } catch (const BadRequest& bad) {
        return Refusal(id, bad.what());
    }
}

Json Refusal(const Json& id, std::string_view error) {
    Json answer;
    answer["id"] = id;
    answer["ok"] = false;
    answer["error"] = error;
    return answer;
}

}  // namespace numerello
