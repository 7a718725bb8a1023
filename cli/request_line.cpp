#include "cli/request_line.h"

#include <set>
#include <string>
#include <vector>

#include "cli/fields.h"
#include "core/text.h"

namespace numerello {

namespace {

/// Watches a line while it is parsed. The parser itself keeps the last of two equal keys and takes
/// any depth.
class Watch {
  public:
    /// False drops the value: what stands too deep is never built.
    bool See(int depth, Json::parse_event_t event, const Json& parsed) {
        switch (event) {
            case Json::parse_event_t::object_start:
                keys.emplace_back();
                break;
            case Json::parse_event_t::object_end:
                if (!keys.empty()) {
                    keys.pop_back();
                }
                break;
            case Json::parse_event_t::key:
                SeeKey(parsed.get<std::string>());
                break;
            default:
                break;
        }
        tooDeep = tooDeep || depth >= kDeepestNesting;
        return depth < kDeepestNesting;
    }

    void Check() const {
        if (tooDeep) {
            throw BadRequest("nested too deeply");
        }
        if (!repeatedKey.empty()) {
            throw BadRequest(Text("the key \"", repeatedKey, "\" is given twice"));
        }
    }

    bool TooDeep() const { return tooDeep; }

  private:
    void SeeKey(const std::string& key) {
        if (!keys.empty() && !keys.back().insert(key).second) {
            repeatedKey = key;
        }
    }

    std::vector<std::set<std::string>> keys;
    std::string repeatedKey;
    bool tooDeep = false;
};

}  // namespace

void ReadRequestLine(std::string_view line, Json& request, Json& id) {
    Watch watch;
    request = Json::parse(
        line,
        [&watch](int depth, Json::parse_event_t event, Json& parsed) {
            return watch.See(depth, event, parsed);
        },
        false);
    if (request.is_discarded() && !watch.TooDeep()) {
        throw BadRequest("not JSON");
    }
    if (request.is_object() && request.contains("id") && !watch.TooDeep()) {
        id = request["id"];
    }
    watch.Check();
    if (!request.is_object()) {
        throw BadRequest("not a JSON object");
    }
}

}  // namespace numerello
