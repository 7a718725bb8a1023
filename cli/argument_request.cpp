#include "cli/argument_request.h"

#include <utility>

#include "cli/saved_request.h"
#include "core/number.h"
#include "core/problem.h"
#include "core/text.h"

namespace numerello {

namespace {

/// "KEY=VALUE" cut at its first "=".
std::pair<std::string, std::string> Pair(const std::string& argument) {
    const std::size_t at = argument.find('=');
    if (at == std::string::npos) {
        throw BadArgument(Text(argument, ": needs the form KEY=VALUE"));
    }
    return {argument.substr(0, at), argument.substr(at + 1)};
}

Json WholeOrText(const std::string& text) {
    const Json value = Json::parse(text, nullptr, false);
    return value.is_number_integer() ? value : Json(text);
}

/// The place that N in "N=..." names, 1 to `count`.
std::size_t Place(const std::string& text, std::size_t count) {
    const Json place = WholeOrText(text);
    if (!place.is_number_integer() || place < 1 || place > count) {
        throw BadArgument(
            Text(text, ": must be a number from 1 to ", WholeText(static_cast<long>(count))));
    }
    return place.get<std::size_t>() - 1;
}

Json Boxes(const std::vector<std::string>& arguments) {
    Json boxes = EntryBoxes().Text;
    for (const std::string& argument : arguments) {
        const auto [place, text] = Pair(argument);
        boxes[Place(place, boxes.size())] = text;
    }
    return boxes;
}

Json Lists(const std::vector<std::string>& arguments) {
    Json lists = EntryBoxes().ListIndex;
    for (const std::string& argument : arguments) {
        const auto [place, index] = Pair(argument);
        lists[Place(place, lists.size())] = WholeOrText(index);
    }
    return lists;
}

Json Settings(const std::vector<std::string>& arguments) {
    Json settings = Json::object();
    for (const std::string& argument : arguments) {
        const auto [key, value] = Pair(argument);
        settings[key] = value == "true"    ? Json(true)
                        : value == "false" ? Json(false)
                                           : WholeOrText(value);
    }
    return settings;
}

/// What the learner entered: as the arguments tell it, or as it was saved.
Json EntryRequest(const SolveArguments& arguments) {
    if (arguments.file) {
        return SavedRequest(*arguments.file);
    }
    return {{"do", "solve"},
            {"topic", arguments.topic},
            {"problem", arguments.problem},
            {"boxes", Boxes(arguments.boxes)},
            {"filled", false},
            {"lists", Lists(arguments.lists)}};
}

}  // namespace

Json SolveRequestOf(const SolveArguments& arguments) {
    Json request = EntryRequest(arguments);
    request["answers"] = arguments.answers;
    request["settings"] = Settings(arguments.settings);
    return request;
}

Json ColumnsRequestOf(const Json& request) {
    return {{"do", "columns"},
            {"topic", request.at("topic")},
            {"boxes", request.at("boxes")},
            {"filled", request.at("filled")},
            {"settings", request.at("settings")}};
}

}  // namespace numerello
