#include "cli/topic_fields.h"

#include <limits>

#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "core/erasing.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

const Topic& NamedTopic(Fields& fields) {
    const bool byCaption = fields.Has("topic");
    if (byCaption == fields.Has("code")) {
        throw BadRequest("give exactly one of \"topic\" and \"code\"");
    }
    if (byCaption) {
        const std::string caption = fields.String("topic", "");
        if (const Topic* topic = FindTopic(caption)) {
            return *topic;
        }
        throw BadRequest(Text("unknown topic \"", caption, "\""));
    }
    constexpr long kLargest = std::numeric_limits<int>::max();
    const long code = fields.Integer("code", {-kLargest, kLargest}, 0);
    if (const Topic* topic = FindTopicByCode(static_cast<int>(code))) {
        return *topic;
    }
    throw BadRequest(Text("unknown code ", WholeText(code)));
}

}  // namespace

void ChooseTopic(Fields& fields, Problem& problem) {
    const SystemClock clock;
    MersenneSource random;
    TreeViewSelect(NamedTopic(fields).caption, problem.topic, clock, random);
    Stage noStage;
    EraseProblem(problem, noStage);
}

}  // namespace numerello
