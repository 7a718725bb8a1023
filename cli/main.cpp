#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

#include "catalogue/topics.h"
#include "cli/argument_request.h"
#include "cli/batch.h"
#include "cli/lesson.h"
#include "cli/people.h"
#include "cli/requests.h"
#include "core/clock.h"
#include "core/disk.h"
#include "core/topic_codes.h"

namespace {

using namespace numerello;  // NOLINT(google-build-using-namespace)

constexpr int kMostExamples = 1000000;

struct TypeArguments {
    std::string topic;
    std::string keys;
    bool json = false;
};

struct ExampleArguments {
    std::string topic;
    bool complex = false;
    int count = 1;
};

/// What the command line says, and what comes of it.
struct Call {
    bool topicsJson = false;
    SolveArguments solve;
    TypeArguments type;
    ExampleArguments example;
    std::string learnTopic;
    int status = kWorked;
};

int TellUnusableFile(const SolveArguments& arguments, const std::string& why) {
    const std::string error = *arguments.file + " " + why;
    if (arguments.json) {
        PrintJson(Refusal(nullptr, error), std::cout);
    }
    std::cerr << "numerello-cli: " << error << '\n';
    return kNotWorked;
}

/// Gives the status back. Where a topic is unknown, the answer has told so.
int WithNearTopics(int status, const std::string& topic) {
    if (status == kUnusable && FindTopic(topic) == nullptr) {
        TellNearTopics(topic, std::cerr);
    }
    return status;
}

/// A column problem has no lines: what its steps are, its drawings tell.
int Solve(const SolveArguments& arguments) {
    const Json request = SolveRequestOf(arguments);
    const Json answer = Answer(request, nullptr);
    // What a program reads keeps the marks.
    const Writing writing = isatty(STDOUT_FILENO) != 0 ? Writing::Readable : Writing::Marks;
    if (arguments.json) {
        return PrintSolvedJson(answer, std::cout, std::cerr);
    }
    if (IsColumnTopic(answer.value("code", 0))) {
        return PrintWorkedColumns(Answer(ColumnsRequestOf(request), nullptr), writing, std::cout,
                                  std::cerr);
    }
    const int status = PrintSolved(answer, writing, std::cout, std::cerr);
    return arguments.file ? status : WithNearTopics(status, arguments.topic);
}

int Type(const TypeArguments& arguments) {
    const Json answer =
        Answer({{"do", "type"}, {"topic", arguments.topic}, {"keys", arguments.keys}}, nullptr);
    return arguments.json
               ? PrintJson(answer, std::cout)
               : WithNearTopics(PrintTyped(answer, std::cout, std::cerr), arguments.topic);
}

int Topics(bool json) {
    const Json answer = Answer({{"do", "topics"}}, nullptr);
    return json ? PrintJson(answer, std::cout) : PrintTopics(answer, std::cout, std::cerr);
}

/// "mmss", as a request spells it.
std::string Moment(const Clock& clock) {
    return std::to_string(10000 + clock.MinutesAndSeconds()).substr(1);
}

/// Examples made within one second have the same digits, so each is made as if a second after the
/// one before.
int Example(const ExampleArguments& arguments) {
    constexpr int kProgressEvery = 1000;
    const bool tellsProgress = isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    SteppingClock clock{SystemClock()};
    const int first = clock.MinutesAndSeconds();
    int status = kWorked;
    for (int i = 0; i < arguments.count && status == kWorked && std::cout; ++i) {
        const Json request{{"do", "example"},
                           {"topic", arguments.topic},
                           {"complex", arguments.complex},
                           {"clock", Moment(clock)},
                           {"seed", first + i}};
        status = PrintExample(Answer(request, nullptr), std::cout, std::cerr);
        clock.Step();
        if (tellsProgress && (i + 1) % kProgressEvery == 0) {
            std::cerr << '\r' << i + 1 << " examples made" << std::flush;
        }
    }
    if (tellsProgress && arguments.count >= kProgressEvery) {
        std::cerr << '\n';
    }
    return WithNearTopics(status, arguments.topic);
}

int Batch() {
    RunBatch(std::cin, std::cout, isatty(STDERR_FILENO) != 0 ? &std::cerr : nullptr);
    return kWorked;
}

int Learn(const std::string& topic) {
    if (!topic.empty() && FindTopic(topic) == nullptr) {
        std::cerr << "numerello-cli: unknown topic \"" << topic << "\"\n";
        return WithNearTopics(kUnusable, topic);
    }
    HoldLesson(topic, std::cout);
    return kWorked;
}

void AddTopics(CLI::App& app, Call& call) {
    CLI::App* topics = app.add_subcommand("topics", "List the topics");
    topics->add_flag("--json", call.topicsJson, "Print the list as JSON");
    topics->callback([&call] { call.status = Topics(call.topicsJson); });
}

void AddSolve(CLI::App& app, Call& call) {
    SolveArguments& arguments = call.solve;
    CLI::App* solve = app.add_subcommand("solve", "Work a problem, line by line");
    solve->footer("The marks of the lines, such as #1/2#, are explained in numerello-cli(1).");
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
    solve->callback([&call, topic, file] {
        if (topic->count() + file->count() == 0) {
            throw CLI::RequiredError("--topic or --file");
        }
        try {
            call.status = Solve(call.solve);
        } catch (const BadArgument& bad) {
            throw CLI::ValidationError(bad.what());
        } catch (const FileError& error) {
            call.status = TellUnusableFile(call.solve, error.what());
        }
    });
}

void AddType(CLI::App& app, Call& call) {
    CLI::App* type = app.add_subcommand("type", "Type keys and see what each does");
    type->add_option("--topic", call.type.topic, "The topic's caption")->required();
    type->add_option("keys", call.type.keys, "The keys")->required();
    type->add_flag("--json", call.type.json, "Print the answer as JSON");
    type->callback([&call] { call.status = Type(call.type); });
}

void AddBatch(CLI::App& app, Call& call) {
    CLI::App* batch = app.add_subcommand("batch", "Answer requests, one JSON object a line");
    batch->callback([&call] { call.status = Batch(); });
}

void AddExample(CLI::App& app, Call& call) {
    CLI::App* example = app.add_subcommand("example", "Make up problems of a topic");
    example->add_option("--topic", call.example.topic, "The topic's caption")->required();
    example->add_flag("--complex", call.example.complex, "Longer numbers, larger expressions");
    example->add_option("--count", call.example.count, "How many, 1 if not given")
        ->check(CLI::Range(1, kMostExamples));
    example->callback([&call] { call.status = Example(call.example); });
}

void AddLearn(CLI::App& app, Call& call) {
    CLI::App* learn = app.add_subcommand("learn", "The tutor in this terminal");
    learn->add_option("--topic", call.learnTopic, "The topic's caption");
    learn->callback([&call] { call.status = Learn(call.learnTopic); });
}

/// The exit status of the command line.
int Run(int argc, char** argv) {
    CLI::App app("The mathematics tutor without its window", "numerello-cli");
    app.set_version_flag("--version", "numerello-cli " NUMERELLO_VERSION);
    app.require_subcommand(1);
    Call call;
    for (const auto add : {AddTopics, AddSolve, AddType, AddBatch, AddExample, AddLearn}) {
        add(app, call);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        app.exit(error);
        return kUnusable;
    }
    return call.status;
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
