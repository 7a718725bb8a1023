#include "catalogue/instructions.h"
#include "catalogue/topics.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "core/text.h"

namespace numerello {

namespace {

/// Four digits "mmss" as a number; each half from 00 to 59.
int ReadMoment(const std::string& text) {
    int moment = 0;
    bool usable = text.size() == 4;
    for (std::size_t i = 0; usable && i < text.size(); ++i) {
        usable = IsDigit(text.substr(i, 1)) && (i % 2 == 1 || text[i] < '6');
        moment = moment * 10 + (text[i] - '0');
    }
    if (!usable) {
        throw BadRequest("\"clock\" must be four digits, minutes and seconds");
    }
    return moment;
}

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
    const int moment = fields.Has("clock") ? ReadMoment(fields.String("clock", ""))
                                           : SystemClock().MinutesAndSeconds();
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
