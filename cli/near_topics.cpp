#include "cli/near_topics.h"

#include <string>

#include "catalogue/topics.h"
#include "core/text.h"

namespace numerello {

std::vector<std::string_view> NearTopics(std::string_view caption) {
    const std::string sought = LowerCase(caption);
    if (sought.empty()) {
        return {};
    }
    std::vector<std::string_view> alike;
    std::vector<std::string_view> beginning;
    std::vector<std::string_view> containing;
    for (const Topic& topic : Topics()) {
        const std::size_t place = LowerCase(topic.caption).find(sought);
        if (place == 0 && topic.caption.size() == caption.size()) {
            alike.push_back(topic.caption);
        } else if (place == 0) {
            beginning.push_back(topic.caption);
        } else if (place != std::string::npos) {
            containing.push_back(topic.caption);
        }
    }
    if (!alike.empty()) {
        return alike;
    }
    return beginning.empty() ? containing : beginning;
}

}  // namespace numerello
