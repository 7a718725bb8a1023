#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/topics.h"
#include "cli/batch.h"
#include "cli/lesson.h"
#include "cli/people.h"
#include "cli/requests.h"
#include "cli/saved_request.h"
#include "core/clock.h"
#include "core/topic_codes.h"

namespace {

using numerello::Json;

constexpr int kNotWorked = 1;
constexpr int kUnusable = 2;
constexpr int kMostExamples = 1000000;

/// Arguments that CLI11 took but that make no sense; what() says why.
using BadArgument = CLI::ValidationError;

struct SolveArguments {
    std::string topic;
    std::string problem;
    std::optional<std::string> file;
    std::vector<std::string> boxes;
    std::vector<std::string> lists;
    std::vector<std::string> answers;
    std::vector<std::string> settings;
    bool json = false;
};

/// "KEY=VALUE" cut at its first "=".
std::pair<std::string, std::string> Pair(const std::string& argument) {
    const std::size_t at = argument.find('=');
    if (at == std::string::npos) {
        throw BadArgument(argument, "needs the form KEY=VALUE");
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
        throw BadArgument(text, "must be a number from 1 to " + std::to_string(count));
    }
    return place.get<std::size_t>() - 1;
}

Json Boxes(const std::vector<std::string>& arguments) {
    Json boxes = Json::array({"", "", "", "", "", ""});
    for (const std::string& argument : arguments) {
        const auto [place, text] = Pair(argument);
        boxes[Place(place, boxes.size())] = text;
    }
    return boxes;
}

Json Lists(const std::vector<std::string>& arguments) {
    Json lists = Json::array({-1, -1, 0});
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

/// A column problem has no lines: what its steps are, its drawings tell.
int SolveInColumns(const Json& request) {
    const Json columns{{"do", "columns"},
                       {"topic", request.at("topic")},
                       {"boxes", request.at("boxes")},
                       {"filled", request.at("filled")},
                       {"settings", request.at("settings")}};
    const Json answer = numerello::Answer(columns, nullptr);
    return numerello::PrintWorkedColumns(answer, std::cout, std::cerr);
}

/// What the learner entered: as the arguments tell it, or as it was saved.
Json EntryRequest(const SolveArguments& arguments) {
    if (arguments.file) {
        return numerello::SavedRequest(*arguments.file);
    }
    return {{"do", "solve"},
            {"topic", arguments.topic},
            {"problem", arguments.problem},
            {"boxes", Boxes(arguments.boxes)},
            {"filled", false},
            {"lists", Lists(arguments.lists)}};
}

int TellUnusableFile(const SolveArguments& arguments, const std::string& why) {
    const std::string error = *arguments.file + " " + why;
    if (arguments.json) {
        numerello::PrintJson(numerello::Refusal(nullptr, error), std::cout);
    }
    std::cerr << "numerello-cli: " << error << '\n';
    return kNotWorked;
}

int Solve(const SolveArguments& arguments) {
    Json request = EntryRequest(arguments);
    request["answers"] = arguments.answers;
    request["settings"] = Settings(arguments.settings);
    const Json answer = numerello::Answer(request, nullptr);
    if (!arguments.json && numerello::IsColumnTopic(answer.value("code", 0))) {
        return SolveInColumns(request);
    }
    return numerello::PrintSolved(answer, arguments.json, std::cout, std::cerr);
}

int Type(const std::string& topic, const std::string& keys, bool json) {
    const Json answer =
        numerello::Answer({{"do", "type"}, {"topic", topic}, {"keys", keys}}, nullptr);
    return json ? numerello::PrintJson(answer, std::cout)
                : numerello::PrintTyped(answer, std::cout, std::cerr);
}

int Topics(bool json) {
    const Json answer = numerello::Answer({{"do", "topics"}}, nullptr);
    return json ? numerello::PrintJson(answer, std::cout)
                : numerello::PrintTopics(answer, std::cout, std::cerr);
}

struct ExampleArguments {
    std::string topic;
    bool complex = false;
    int count = 1;
};

/// "mmss" for a second of the hour; they go round.
std::string Moment(int second) {
    constexpr int kHour = 3600;
    const int moment = second % kHour / 60 * 100 + second % 60;
    return std::to_string(10000 + moment).substr(1);
}

/// Examples made within one second have the same digits, so each is made as if a second after the
/// one before.
int Example(const ExampleArguments& arguments) {
    constexpr int kProgressEvery = 1000;
    const bool tellsProgress = isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    const int now = numerello::SystemClock().MinutesAndSeconds();
    const int first = now / 100 * 60 + now % 100;
    int status = 0;
    for (int i = 0; i < arguments.count && status == 0 && std::cout; ++i) {
        const Json request{{"do", "example"},
                           {"topic", arguments.topic},
                           {"complex", arguments.complex},
                           {"clock", Moment(first + i)},
                           {"seed", first + i}};
        status = numerello::PrintExample(numerello::Answer(request, nullptr), std::cout, std::cerr);
        if (tellsProgress && (i + 1) % kProgressEvery == 0) {
            std::cerr << '\r' << i + 1 << " examples made" << std::flush;
        }
    }
    if (tellsProgress && arguments.count >= kProgressEvery) {
        std::cerr << '\n';
    }
    return status;
}

int Batch() {
    numerello::RunBatch(std::cin, std::cout, isatty(STDERR_FILENO) != 0 ? &std::cerr : nullptr);
    return 0;
}

int Learn(const std::string& topic) {
    if (!topic.empty() && numerello::FindTopic(topic) == nullptr) {
        std::cerr << "numerello-cli: unknown topic \"" << topic << "\"\n";
        return kUnusable;
    }
    numerello::HoldLesson(topic, std::cout);
    return 0;
}

void AddSolve(CLI::App& app, SolveArguments& arguments, int& status) {
    CLI::App* solve = app.add_subcommand("solve", "Work a problem, line by line");
    CLI::Option* topic = solve->add_option("--topic", arguments.topic, "The topic's caption");
    CLI::Option* file = solve->add_option("--file", arguments.file, "A saved problem");
    file->excludes(topic);
    file->excludes(solve->add_option("--problem", arguments.problem,
                                     "The problem as typed on the paper line"));
    const auto addMany = [solve](const char* name, std::vector<std::string>& to, const char* help) {
        return solve->add_option(name, to, help)->allow_extra_args(false);
    };
    file->excludes(addMany("--box", arguments.boxes, "N=TEXT: what to type into box N, 1 to 6"));
    file->excludes(
        addMany("--list", arguments.lists, "N=INDEX: the row of list N, 1 to 3; rows from 0"));
    addMany("--answer", arguments.answers, "The answer to the next question");
    addMany("--set", arguments.settings, "KEY=VALUE: a setting, such as RoundDigits=4");
    solve->add_flag("--json", arguments.json, "Print the answer as JSON");
    solve->callback([&arguments, &status, topic, file] {
        if (topic->count() + file->count() == 0) {
            throw CLI::RequiredError("--topic or --file");
        }
        try {
            status = Solve(arguments);
        } catch (const numerello::FileError& error) {
            status = TellUnusableFile(arguments, error.what());
        }
    });
}

/// The exit status of the command line.
int Run(int argc, char** argv) {
    CLI::App app("The mathematics tutor without its window", "numerello-cli");
    app.set_version_flag("--version", "numerello-cli " NUMERELLO_VERSION);
    app.require_subcommand(1);
    int status = 0;

    bool topicsJson = false;
    CLI::App* topics = app.add_subcommand("topics", "List the topics");
    topics->add_flag("--json", topicsJson, "Print the list as JSON");
    topics->callback([&] { status = Topics(topicsJson); });

    SolveArguments solveArguments;
    AddSolve(app, solveArguments, status);

    std::string typeTopic;
    std::string typeKeys;
    bool typeJson = false;
    CLI::App* type = app.add_subcommand("type", "Type keys and see what each does");
    type->add_option("--topic", typeTopic, "The topic's caption")->required();
    type->add_option("keys", typeKeys, "The keys")->required();
    type->add_flag("--json", typeJson, "Print the answer as JSON");
    type->callback([&] { status = Type(typeTopic, typeKeys, typeJson); });

    CLI::App* batch = app.add_subcommand("batch", "Answer requests, one JSON object a line");
    batch->callback([&] { status = Batch(); });

    ExampleArguments exampleArguments;
    CLI::App* example = app.add_subcommand("example", "Make up problems of a topic");
    example->add_option("--topic", exampleArguments.topic, "The topic's caption")->required();
    example->add_flag("--complex", exampleArguments.complex, "Longer numbers, larger expressions");
    example->add_option("--count", exampleArguments.count, "How many, 1 if not given")
        ->check(CLI::Range(1, kMostExamples));
    example->callback([&] { status = Example(exampleArguments); });

    std::string learnTopic;
    CLI::App* learn = app.add_subcommand("learn", "The tutor in this terminal");
    learn->add_option("--topic", learnTopic, "The topic's caption");
    learn->callback([&] { status = Learn(learnTopic); });

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return kUnusable;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        std::ios::sync_with_stdio(false);
        const int status = Run(argc, argv);
        if (!std::cout.flush()) {
            std::cerr << "numerello-cli: the output could not be written\n";
            return kNotWorked;
        }
        return status;
    } catch (const std::exception& error) {
        std::cerr << "numerello-cli: " << error.what() << '\n';
        return kNotWorked;
    }
}
