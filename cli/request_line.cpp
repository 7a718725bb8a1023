#include "cli/request_line.h"

#include <set>
#include <string>
#include <vector>

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

    /// Why the line is no request, empty so far when nothing is wrong.
    const std::string& Trouble() const { return trouble; }

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

RequestLine ReadRequestLine(std::string_view line) {
    RequestLine read;
    // The parser takes a NUL for the end of the line.
    if (line.find('\0') != std::string_view::npos) {
        read.trouble = "not JSON";
        return read;
    }
    Watch watch;
    read.request = Json::parse(
        line,
        [&watch](int depth, Json::parse_event_t event, Json& parsed) {
            return watch.See(depth, event, parsed);
        },
        false);
    if (read.request.is_object() && read.request.contains("id") && !watch.DroppedInId()) {
        read.id = read.request["id"];
    }
    if (!watch.Trouble().empty()) {
        read.trouble = watch.Trouble();
    } else if (read.request.is_discarded()) {
        read.trouble = "not JSON";
    } else if (!read.request.is_object()) {
        read.trouble = "not a JSON object";
    }
    return read;
}

}  // namespace numerello
