#include "cli/request_line.h"

#include <set>
#include <string>
#include <vector>

#include "cli/fields.h"
#include "core/text.h"

namespace numerello {

namespace {

/// Watches a line while it is parsed. The parser itself keeps the last of two equal keys and takes
/// any depth and any number of keys.
class Watch {
  public:
    /// False drops the value: what goes beyond a limit is never built.
    bool See(int depth, Json::parse_event_t event, const Json& parsed) {
        switch (event) {
            case Json::parse_event_t::object_start:
                keys.emplace_back();
                return SeeDepth(depth);
            case Json::parse_event_t::array_start:
                return SeeDepth(depth);
            case Json::parse_event_t::object_end:
                keys.pop_back();
                return true;
            case Json::parse_event_t::key:
                return SeeKey(parsed.get_ref<const std::string&>());
            default:
                return true;
        }
    }

    void Check() const {
        if (!trouble.empty()) {
            throw BadRequest(trouble);
        }
    }

    /// Whether something was dropped that "id" holds.
    bool DroppedInId() const { return droppedInId; }

  private:
    bool SeeDepth(int depth) { return depth < kDeepestNesting || Drop("nested too deeply"); }

    bool SeeKey(const std::string& key) {
        if (keys.size() == 1) {
            inId = key == "id";
        }
        std::set<std::string>& siblings = keys.back();
        if (siblings.size() >= kMostKeys) {
            return Drop("an object has too many keys");
        }
        if (!siblings.insert(key).second) {
            trouble = Text("the key \"", key, "\" is given twice");
        }
        return true;
    }

    bool Drop(std::string_view why) {
        trouble = why;
        droppedInId = droppedInId || inId;
        return false;
    }

    std::vector<std::set<std::string>> keys;  ///< of each open object, the outermost first
    std::string trouble;
    bool inId = false;
    bool droppedInId = false;
};

}  // namespace

void ReadRequestLine(std::string_view line, Json& request, Json& id) {
    // The parser takes a NUL for the end of the line.
    if (line.find('\0') != std::string_view::npos) {
        throw BadRequest("not JSON");
    }
    Watch watch;
    request = Json::parse(
        line,
        [&watch](int depth, Json::parse_event_t event, Json& parsed) {
            return watch.See(depth, event, parsed);
        },
        false);
    if (request.is_object() && request.contains("id") && !watch.DroppedInId()) {
        id = request["id"];
    }
    watch.Check();
    if (request.is_discarded()) {
        throw BadRequest("not JSON");
    }
    if (!request.is_object()) {
        throw BadRequest("not a JSON object");
    }
}

}  // namespace numerello
