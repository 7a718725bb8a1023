#include "cli/people.h"

#include <iomanip>
#include <ostream>
#include <string>

#include "catalogue/entry_text.h"
#include "catalogue/topics.h"
#include "cli/column_picture.h"
#include "cli/mark_fields.h"
#include "cli/near_topics.h"
#include "cli/terminal_text.h"

namespace numerello {

namespace {

std::string String(const Json& object, const char* name) {
    return object.at(name).get<std::string>();
}

bool Usable(const Json& answer) {
    return answer.at("ok").get<bool>();
}

int TellUnusable(const Json& answer, std::ostream& err) {
    err << "numerello-cli: " << String(answer, "error") << '\n';
    return kUnusable;
}

void TellRefusedKeys(const Json& refused, std::ostream& err) {
    for (const Json& key : refused) {
        err << "The key '" << VisibleText(String(key, "key")) << "' was refused";
        if (key.contains("box")) {
            err << " in box " << key.at("box").get<int>();
        }
        const std::string why = String(key, "why");
        err << (why.empty() ? "." : ": " + VisibleText(why)) << '\n';
    }
}

std::string Written(const std::string& line, Writing writing) {
    return writing == Writing::Readable ? TerminalText(line) : line;
}

void PrintReason(const Json& line, Writing writing, std::ostream& out) {
    constexpr std::size_t kReasonColumn = 7;
    const std::string note = String(line, "note");
    if (!note.empty()) {
        out << std::string(kReasonColumn, ' ') << Written(note, writing) << '\n';
    }
}

/// The log's first line is the problem; without a log it is what was typed. It has a reason where
/// nothing else is left to say, as for 3=3.
void PrintProblem(const Json& answer, Writing writing, std::ostream& out) {
    const Json& lines = answer.at("lines");
    const std::string problem =
        lines.empty() ? String(answer, "problem") : String(lines.front(), "text");
    if (problem.empty()) {
        return;
    }
    out << Written(problem, writing) << '\n';
    if (!lines.empty()) {
        PrintReason(lines.front(), writing, out);
    }
    out << '\n';
}

void PrintSteps(const Json& lines, Writing writing, std::ostream& out) {
    for (std::size_t i = 1; i < lines.size(); ++i) {
        out << std::setw(2) << i << ". " << Written(String(lines[i], "text"), writing) << '\n';
        PrintReason(lines[i], writing, out);
    }
}

/// Everything that a learner would be told while typing and solving.
void TellTroubles(const Json& answer, std::ostream& err) {
    TellRefusedKeys(answer.at("refused"), err);
    if (!answer.at("solvable").get<bool>()) {
        err << "The problem is not entered completely, so it was not solved.\n";
    }
    for (const Json& message : answer.at("messages")) {
        const std::string title = String(message, "title");
        err << (title.empty() ? "" : title + "  ") << String(message, "text") << '\n';
    }
}

int ExitStatus(const Json& answer) {
    if (!Usable(answer)) {
        return kUnusable;
    }
    const bool solved = !answer.contains("failure") ||
                        (answer.at("solvable").get<bool>() && answer.at("failure").is_null());
    return solved ? kWorked : kNotWorked;
}

}  // namespace

int PrintSolved(const Json& answer, Writing writing, std::ostream& out, std::ostream& err) {
    if (!Usable(answer)) {
        return TellUnusable(answer, err);
    }
    PrintProblem(answer, writing, out);
    PrintSteps(answer.at("lines"), writing, out);
    out << std::flush;
    TellTroubles(answer, err);
    return ExitStatus(answer);
}

int PrintSolvedJson(const Json& answer, std::ostream& out, std::ostream& err) {
    const int status = PrintJson(answer, out);
    if (Usable(answer)) {
        out << std::flush;
        TellTroubles(answer, err);
    }
    return status;
}

int PrintWorkedColumns(const Json& answer, Writing writing, std::ostream& out, std::ostream& err) {
    if (!Usable(answer)) {
        return TellUnusable(answer, err);
    }
    const Json& frames = answer.at("frames");
    for (std::size_t i = 0; i < frames.size(); ++i) {
        out << std::setw(2) << i + 1 << ". " << Written(String(frames[i], "note"), writing) << '\n';
    }
    if (!frames.empty()) {
        out << '\n';
        for (const std::string& row : ColumnPicture(ReadMarks(frames.back().at("marks")))) {
            out << "    " << row << '\n';
        }
    }
    out << std::flush;
    TellTroubles(answer, err);
    return ExitStatus(answer);
}

int PrintTyped(const Json& answer, std::ostream& out, std::ostream& err) {
    if (!Usable(answer)) {
        return TellUnusable(answer, err);
    }
    for (const Json& key : answer.at("keys")) {
        const std::string name = String(key, "key") == "\b" ? "Backspace" : String(key, "key");
        out << std::left << std::setw(3) << name << ' ' << String(key, "line");
        if (!key.at("accepted").get<bool>()) {
            out << "   refused: " << VisibleText(String(key, "why"));
        }
        out << '\n';
    }
    out << (answer.at("solvable").get<bool>() ? "Solve! is on.\n" : "Solve! is off.\n");
    return kWorked;
}

int PrintExample(const Json& answer, std::ostream& out, std::ostream& err) {
    if (!Usable(answer)) {
        return TellUnusable(answer, err);
    }
    EntryBoxes boxes;
    boxes.Text = answer.at("boxes").get<decltype(boxes.Text)>();
    boxes.ListIndex = answer.at("lists").get<decltype(boxes.ListIndex)>();
    out << EntryText(answer.at("code").get<int>(), String(answer, "problem"), boxes) << '\n';
    return kWorked;
}

int PrintTopics(const Json& answer, std::ostream& out, std::ostream& err) {
    if (!Usable(answer)) {
        return TellUnusable(answer, err);
    }
    for (const Folder& folder : Folders()) {
        bool headed = false;
        for (const Json& topic : answer.at("topics")) {
            if (topic.at("parent") != folder.key) {
                continue;
            }
            if (!headed) {
                out << folder.caption << '\n';
                headed = true;
            }
            out << "    " << String(topic, "caption") << '\n';
        }
    }
    out << "By name only\n";
    for (const Json& topic : answer.at("topics")) {
        if (topic.at("parent").is_null()) {
            out << "    " << String(topic, "caption") << '\n';
        }
    }
    return kWorked;
}

void TellNearTopics(const std::string& caption, std::ostream& err) {
    const std::vector<std::string_view> near = NearTopics(caption);
    if (!near.empty()) {
        err << "Did you mean one of these?\n";
    }
    for (const std::string_view each : near) {
        err << "    " << each << '\n';
    }
    err << "\"numerello-cli topics\" lists the captions of all topics.\n";
}

int PrintJson(const Json& answer, std::ostream& out) {
    out << JsonLine(answer) << '\n';
    return ExitStatus(answer);
}

}  // namespace numerello
