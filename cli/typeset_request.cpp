#include <cmath>

#include "cli/mark_fields.h"
#include "cli/requests.h"
#include "cli/setting_fields.h"
#include "core/text.h"
#include "typeset/sample.h"

namespace numerello {

namespace {

constexpr double kFarthest = 1e6;
constexpr double kLeastSize = 1;
constexpr double kLargestSize = 100;

Json Marks(const SampleAnswer& sample) {
    Json marks = Json::array();
    for (const auto& [page, mark] : sample.marks) {
        Json fields = MarkFields(mark);
        if (!fields.is_null()) {
            fields["page"] = page;
            marks.push_back(std::move(fields));
        }
    }
    return marks;
}

Json Messages(const SampleAnswer& sample) {
    Json messages = Json::array();
    for (const auto& [title, text] : sample.messages) {
        messages.push_back({{"title", title}, {"text", text}});
    }
    return messages;
}

SampleRequest ReadSample(Fields& fields) {
    if (!fields.Has("variant") || !fields.Has("text")) {
        throw BadRequest("\"variant\" and \"text\" are needed");
    }
    const std::string variant = fields.String("variant", "");
    const auto target = FindTypesetTarget(variant);
    if (!target) {
        throw BadRequest(Text("unknown variant \"", variant, "\""));
    }
    SampleRequest request;
    request.target = *target;
    request.text = fields.String("text", "");
    request.x = fields.Number("x", {-kFarthest, kFarthest}, 0);
    request.y = fields.Number("y", {-kFarthest, kFarthest}, 0);
    if (fields.Has("size")) {
        request.size = fields.Number("size", {kLeastSize, kLargestSize}, kLeastSize);
    }
    request.blue = fields.Bool("blue", false);
    AnswerSettings unused;
    ApplySettings(fields, unused);
    fields.RejectOthers();
    return request;
}

}  // namespace

void TypesetRequest(Fields& fields, Json& answer) {
    const SampleAnswer sample = TypesetSample(ReadSample(fields), PlainMetrics());
    answer["ok"] = true;
    answer["marks"] = Marks(sample);
    answer["end"] = Json::array({Rounded(sample.endX), Rounded(sample.endY)});
    answer["pages"] = sample.pagesTurned;
    answer["messages"] = Messages(sample);
}

}  // namespace numerello
