#include "ui/export_pdf.h"

#include <QStringList>
#include <QtGlobal>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>

#include "app/solvers.h"
#include "catalogue/bare_form.h"
#include "core/clock.h"
#include "core/random_source.h"
#include "core/silent_learner.h"
#include "core/text.h"
#include "graph/graph.h"
#include "output/print_choices.h"
#include "output/print_solution.h"
#include "ui/graph_painter.h"
#include "ui/print_job.h"

namespace numerello {

namespace {

/// Nobody is there to read or to answer; what was said last is why nothing more came.
class LastWords : public Learner {
  public:
    std::string said;

    void MessageBox(std::string_view, std::string_view text) override { said = text; }
    bool Confirm(std::string_view, std::string_view) override { return false; }
    std::optional<std::string> InputBox(std::string_view, std::string_view prompt) override {
        said = Text("asks: ", prompt);
        return {};
    }
};

/// The reason why a file's problem could not be worked, empty when it was.
std::string Work(const SavedProblem& saved, Problem& problem) {
    MersenneSource random;
    LastWords learner;
    bool solved = false;
    std::optional<FailureKind> failure;
    BareForm form(problem, [&] {
        Stage noStage;
        failure = compute_Click(problem, AllSolvers(), learner, noStage);
        solved = true;
    });
    LoadSavedProblem(saved, problem, form, SystemClock(), random);
    if (!solved) {
        return "is not a finished problem";
    }
    return failure ? Text("cannot be worked: ", learner.said) : "";
}

PrintOrder OrderOf(const Problem& problem, bool hasGraph) {
    const PrintChoices choices = ChoicesAtOpening(problem.topic.ProblemType, hasGraph);
    return {HeadingAtOpening(problem.topic.TopicTitle, SystemClock().Today()),
            choices.Problem.ticked, choices.Explanation.enabled, choices.Graph.ticked};
}

/// A graph as its window opens with it, computed as finely as can be.
struct PrintedGraph {
    explicit PrintedGraph(const Problem& problem) : graph(problem, settings) {}

    GraphSettings settings{.GraphQuality = kHighQuality};
    Graph graph;
    FontMetrics faces{FontMetrics::Medium::Print};
};

/// Empty for a problem without a graph.
GraphPainter GraphOf(const Problem& problem) {
    if (problem.graph.GraphMode == 0) {
        return {};
    }
    return [printed = std::make_shared<PrintedGraph>(problem)](QPainter& painter, QRectF square) {
        PaintGraph(painter, square, printed->graph.Picture(), printed->faces);
    };
}

void Write(const QString& pdf, const Problem& problem) {
    const GraphPainter graph = GraphOf(problem);
    const PrintOrder order = OrderOf(problem, static_cast<bool>(graph));
    const PrintJob job{
        .name = problem.topic.TopicTitle,
        .compose = [&](Surface& Printer,
                       Learner& learner) { PrintSolution(problem, order, Printer, learner); },
        .graph = graph};
    SilentLearner learner;
    const ComposedJob composed(job, PaperOf(UsualLayout()), learner);
    const auto content = PdfOf(composed, UsualLayout(), job.name);
    if (!content) {
        throw FileError("cannot be written");
    }
    WriteFile(pdf.toStdString(), {content->constData(), static_cast<std::size_t>(content->size())});
}

}  // namespace

void PrepareExport(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--export" || argument.starts_with("--export=")) {
            if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
                qputenv("QT_QPA_PLATFORM", "offscreen");
            }
            return;
        }
    }
}

std::string ExportProblem(const QString& problemFile, const QString& pdf) {
    const std::string path = problemFile.toStdString();
    std::string subject = path;
    std::string message;
    try {
        Problem problem;
        message = Work(ReadSavedProblem(ReadFile(path, kLongestProblemFile)), problem);
        if (message.empty()) {
            subject = pdf.toStdString();
            Write(pdf, problem);
        }
    } catch (const FileError& error) {
        message = error.what();
    }
    return message.empty() ? "" : Text(subject, ": ", message);
}

int ExportPdf(const QString& pdf, const QStringList& arguments) {
    if (pdf.isEmpty() || arguments.size() != 1) {
        std::fputs("numerello: --export FILE.pdf needs one problem file\n", stderr);
        return 2;
    }
    const std::string message = ExportProblem(arguments.front(), pdf);
    if (message.empty()) {
        return 0;
    }
    std::fputs(Text("numerello: ", message, "\n").c_str(), stderr);
    return 1;
}

}  // namespace numerello
