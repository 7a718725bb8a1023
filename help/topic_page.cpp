#include "help/topic_page.h"

#include <algorithm>
#include <utility>

#include "catalogue/entry_layouts.h"
#include "core/number.h"
#include "core/problem_file.h"
#include "core/text.h"
#include "help/box_names.h"
#include "help/contents.h"
#include "help/help_error.h"
#include "help/set_text.h"
#include "help/what_to_type.h"
#include "help/worked_example.h"
#include "topics/conversions.h"

namespace numerello {

namespace {

/// "Fractions/Ratios > Fraction/Mixed Conversions", from the outermost chapter on.
std::string ChapterPath(std::string_view key) {
    const auto folders = Folders();
    const auto folder = std::find_if(folders.begin(), folders.end(),
                                     [key](const Folder& each) { return each.key == key; });
    if (folder == folders.end()) {
        return "";
    }
    const std::string outer = ChapterPath(folder->parent);
    return Text(outer, outer.empty() ? "" : " &rsaquo; ", Escaped(folder->caption));
}

std::string_view UnitName(const EntryLayout& layout, int row) {
    return MetricItem(row, layout.lists == EntryLists::Lengths ? kLengthUnits : kMassUnits);
}

/// What to do to enter the example, one sentence a list item.
std::string EntryOf(const TopicText& text, const EntryLayout* layout) {
    std::string items;
    const auto add = [&items](std::string_view sentence) {
        items += Text("<li>", sentence, "</li>\n");
    };
    if (!text.problem.empty()) {
        add(Text("Type <code>", Escaped(text.problem), "</code>."));
    }
    if (layout != nullptr) {
        for (const EntryBoxLayout& box : layout->boxes) {
            const std::string& number = text.boxes.Box(box.number);
            const std::string name =
                layout->boxes.size() == 1 ? "the box" : Text("<b>", BoxName(box), "</b>");
            add(number.empty() ? Text("Leave ", name, " empty.")
                               : Text("Type <code>", number, "</code> into ", name, "."));
        }
        if (layout->readiness == Readiness::ValueAndUnits) {
            add(Text("Choose <b>", UnitName(*layout, text.boxes.ListIndex[0]),
                     "</b> in the first list and <b>", UnitName(*layout, text.boxes.ListIndex[1]),
                     "</b> in the second."));
        }
        if (layout->lists == EntryLists::Roundings) {
            const auto rows = RoundingRows();
            const auto row = static_cast<std::size_t>(text.boxes.ListIndex[2]);
            if (row >= rows.size()) {
                throw HelpError(Text("\"", text.caption, "\" chooses a row that no list has"));
            }
            add(Text("Choose <b>", rows[row], "</b> from the list."));
        }
    }
    return Text("<ul>\n", items, "</ul>\n");
}

/// A row of the sheet: a number in the margin, the red line, what is written.
std::string SheetRow(std::string_view margin, std::string_view line, std::string_view reason) {
    return Text("<tr><td class=\"margin\" width=\"28\">", margin,
                "</td><td class=\"redline\" width=\"2\"></td><td width=\"100%\">",
                line.empty() ? "" : Text("<p class=\"line\">", line, "</p>"),
                reason.empty() ? "" : Text("<p class=\"reason\">", reason, "</p>"), "</td></tr>\n");
}

std::string SheetOf(const WorkedExample& example, std::string_view name, bool drawnEntry) {
    std::string rows;
    const auto& log = std::as_const(example.Solved().log);
    if (drawnEntry) {
        rows += SheetRow("", Text("<img src=\"entry:", name, "\" alt=\"\">"), "");
    } else if (log.StepCount > 1) {
        rows += SheetRow("", MathLine(log.StepText[1], Ink::Black), "");
    }
    if (const auto& line = example.NumberLine()) {
        rows += SheetRow("",
                         Text("<img src=\"number-line:", name, "\" alt=\"A number line with ",
                              NumberText(line->A), " and ", NumberText(line->B), "\">"),
                         "");
    }
    bool inColumns = false;
    int number = 0;
    for (const WorkedExample::Step& step : example.Steps()) {
        inColumns = inColumns || step.line.empty();
        rows +=
            SheetRow(WholeText(++number), step.line.empty() ? "" : MathLine(step.line, Ink::Black),
                     MathSentence(step.reason, Ink::Blue));
    }
    if (inColumns) {
        rows += SheetRow(
            "", Text("<img src=\"working:", name, "\" alt=\"", "The finished working", "\">"), "");
    }
    return Text("<table class=\"sheet\" width=\"100%\" cellspacing=\"0\" cellpadding=\"6\">\n",
                rows, "</table>\n");
}

std::string Questions(const WorkedExample& example, const TopicText& text) {
    std::string html;
    for (std::size_t i = 0; i < text.answers.size(); ++i) {
        html += Text("<li>To the question ", "<i>", MathSentence(example.Questions()[i], Ink::Page),
                     "</i> answer <code>", Escaped(text.answers[i]), "</code>.</li>\n");
    }
    return html.empty() ? "" : Text("<p>While it is solved:</p>\n<ul>\n", html, "</ul>\n");
}

std::string Neighbours(const Topic& topic) {
    std::string links;
    for (const Topic& other : Topics()) {
        if (other.parent == topic.parent && other.caption != topic.caption) {
            links += Text("<li><a href=\"help:", PageName(other.caption), "\">",
                          Escaped(other.caption), "</a></li>\n");
        }
    }
    return Text(links, "<li><a href=\"help:typing\">Typing mathematics</a></li>\n");
}

std::string Items(const std::vector<std::string>& sentences) {
    std::string html;
    for (const std::string& sentence : sentences) {
        html += Text("<li>", sentence, "</li>\n");
    }
    return html;
}

}  // namespace

std::string ExampleFile(const TopicText& text) {
    const PlainMetrics metrics;
    return Text(ProblemLine(WorkedExample(text, metrics).Solved()), "\n");
}

std::string TopicPage(const Topic& topic, const TopicText& text) {
    const PlainMetrics metrics;
    const WorkedExample example(text, metrics);
    const EntryLayout* layout = FindEntryLayout(topic.code);
    const bool drawnEntry = layout != nullptr && !layout->boxes.empty();
    const std::string name = PageName(topic.caption);
    const std::string path = ChapterPath(topic.parent);

    std::string html = Text("<h1>", Escaped(topic.caption), "</h1>\n");
    if (path.empty()) {
        html +=
            "<p class=\"path\">Opened by the example below, by a saved problem or by the command "
            "line</p>\n";
    } else {
        html += Text("<p class=\"path\">", path, "</p>\n");
    }
    html += Text("<p>", WithMath(text.about), "</p>\n");
    html +=
        Text("<h2>What to type</h2>\n<ul>\n", Items(WhatToType(topic, text.problem)), "</ul>\n");
    html += Text("<h2>An example</h2>\n", EntryOf(text, layout));
    html += "<p>Then press <b>Solve!</b> or the Enter key.</p>\n";
    if (path.empty()) {
        html += Text("<p><a href=\"", kExampleScheme, name,
                     "\">Open this example</a> on the sheet: it takes the place of the problem "
                     "there. The same example is the file <code>",
                     Escaped(topic.caption),
                     ".nrl</code> in the folder <code>numerello/examples</code> beside the other "
                     "files of installed programs, <code>/usr/share</code> as a rule.</p>\n");
    }
    html += Questions(example, text);
    html += SheetOf(example, name, drawnEntry);
    if (example.Steps().empty()) {
        html += "<p>The solution is the drawing in the graph window.</p>\n";
    }
    html += Text(kSeeAlso, "\n<ul>\n", Neighbours(topic), "</ul>\n");
    return html;
}

}  // namespace numerello
