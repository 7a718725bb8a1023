#include "cli/entry_fields.h"

#include "catalogue/box_keys.h"
#include "catalogue/guided_input.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr long kTopListRow = 6;

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

}  // namespace

Entry ReadBoxes(Fields& fields) {
    Entry entry;
    entry.boxes = fields.Strings("boxes", EntryBoxes().Text.size());
    entry.filled = fields.Bool("filled", false);
    return entry;
}

Entry ReadEntry(Fields& fields) {
    Entry entry = ReadBoxes(fields);
    entry.problem = fields.String("problem", "");
    entry.lists = fields.Integers("lists", EntryBoxes().ListIndex.size(),
                                  {EntryBoxes::kNoChoice, kTopListRow});
    if (entry.problem.find(kBackspace) != std::string::npos) {
        throw BadRequest("\"problem\" holds a Backspace");
    }
    return entry;
}

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

}  // namespace numerello
