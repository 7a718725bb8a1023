#include "catalogue/instructions.h"
#include "catalogue/topics.h"
#include "cli/draw_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"

namespace numerello {

namespace {

Json Describe(const Topic& topic, const Clock& clock, RandomSource& random) {
    return {{"caption", topic.caption},
            {"code", topic.code},
            {"mask", topic.mask},
            {"digits", topic.digits},
            {"variables", topic.variables},
            {"parent", topic.parent.empty() ? Json(nullptr) : Json(topic.parent)},
            {"instruction", DrawInstruction(topic.code, clock, random)}};
}

}  // namespace

void TopicsRequest(Fields& fields, Json& answer) {
    const int moment = ReadMoment(fields).value_or(SystemClock().MinutesAndSeconds());
    AnswerSettings unused;
    ApplySettings(fields, unused);
    fields.RejectOthers();
    const FixedClock clock(moment);
    MersenneSource random;
    Json topics = Json::array();
    for (const Topic& topic : Topics()) {
        topics.push_back(Describe(topic, clock, random));
    }
    answer["ok"] = true;
    answer["topics"] = std::move(topics);
}

}  // namespace numerello
