#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QTimer>

#include "catalogue/topic_choice.h"
#include "core/erasing.h"
#include "ui/frm_help.h"
#include "ui/frm_paper.h"

namespace numerello {
namespace {

/// A sheet of the frame's usual size with 40 inches typed on it.
class OpenSheet {
  public:
    explicit OpenSheet(const char* caption = "Converting Inches To Yards",
                       const char* keys = "40") {
        MersenneSource random;
        TreeViewSelect(caption, problem.topic, SystemClock(), random);
        paper = std::make_unique<FrmPaper>(problem, learner, nullptr);
        paper->resize(1100, 690);
        paper->show();
        paper->Form_KeyPress(keys);
    }

    void Restart(const char* keys = "40") {
        EraseProblem(problem, noStage);
        paper->Form_KeyPress(keys);
        paper->compute_Click();
    }

    void PlayAll() {
        Restart("83160");
        while (problem.playback.ShownStep < problem.log.StepCount - 1) {
            paper->NextStep();
        }
    }

    void RestartProduct() {
        EraseProblem(problem, noStage);
        problem.boxes.Text[0] = problem.boxes.Text[1] = "9999999999";
        problem.controls.SolveEnabled = true;
        paper->compute_Click();
    }

    FrmPaper& Paper() { return *paper; }
    const Problem& Now() const { return problem; }

  private:
    Problem problem;
    WindowLearner learner{nullptr};
    Stage noStage;
    std::unique_ptr<FrmPaper> paper;
};

/// A click on the arrow until the sheet is painted anew.
void NextStepPainted(benchmark::State& state) {
    OpenSheet sheet;
    sheet.Restart();
    for (auto _ : state) {
        if (sheet.Now().playback.ShownStep >= sheet.Now().log.StepCount - 1) {
            state.PauseTiming();
            sheet.Restart();
            state.ResumeTiming();
        }
        sheet.Paper().NextStep();
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(NextStepPainted)->Unit(benchmark::kMillisecond);

/// The same in a product of ten digits by ten, from its numbers to the last digit that is drawn.
void ColumnStepPainted(benchmark::State& state) {
    constexpr int kLastStep = 102;
    OpenSheet sheet("Multiplication", "");
    sheet.RestartProduct();
    for (auto _ : state) {
        if (sheet.Now().playback.ShownStep >= kLastStep) {
            state.PauseTiming();
            sheet.RestartProduct();
            state.ResumeTiming();
        }
        sheet.Paper().NextStep();
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(ColumnStepPainted)->Unit(benchmark::kMillisecond);

/// A key until the sheet is painted anew.
void KeyPainted(benchmark::State& state) {
    OpenSheet sheet;
    bool erase = true;
    for (auto _ : state) {
        sheet.Paper().Form_KeyPress(erase ? "\b" : "0");
        erase = !erase;
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(KeyPainted)->Unit(benchmark::kMillisecond);

/// The same behind a line of sixty characters, fractions and exponents among them.
void KeyPaintedBehindAFullLine(benchmark::State& state) {
    OpenSheet sheet("Simplifying Polynomials",
                    "9(3x^2+8^2)-3/4+4x-(x^2-7)/5+2(x+1)^2/3-x^3+12x/7+(x-4)/2+91");
    bool erase = true;
    for (auto _ : state) {
        sheet.Paper().Form_KeyPress(erase ? "\b" : "1");
        erase = !erase;
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(KeyPaintedBehindAFullLine)->Unit(benchmark::kMillisecond);

/// A solution on six sheets, and one of them dragged by a pixel until all is painted anew.
void SheetDraggedOverOthers(benchmark::State& state) {
    OpenSheet sheet("Factoring", "83160");
    sheet.PlayAll();
    auto* paper = sheet.Paper().findChild<QWidget*>(QStringLiteral("Paper4"));
    const auto send = [paper](QEvent::Type type, int x) {
        const QPointF place(x, 600);
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, place, paper->mapToGlobal(place),
                          moves ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(paper, &event);
    };
    send(QEvent::MouseButtonPress, 400);
    int way = 1;
    for (auto _ : state) {
        send(QEvent::MouseMove, 400 + way);
        way = -way;
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(SheetDraggedOverOthers)->Unit(benchmark::kMillisecond);

/// The last line of 83160's factors, three rows and more, until its sheet is painted anew.
void LongLinePainted(benchmark::State& state) {
    OpenSheet sheet("Factoring", "83160");
    for (auto _ : state) {
        state.PauseTiming();
        sheet.Restart("83160");
        while (sheet.Now().playback.ShownStep < sheet.Now().log.StepCount - 2) {
            sheet.Paper().NextStep();
        }
        sheet.Paper().grab();
        state.ResumeTiming();
        sheet.Paper().NextStep();
        benchmark::DoNotOptimize(sheet.Paper().grab());
    }
}
BENCHMARK(LongLinePainted)->Unit(benchmark::kMillisecond)->Iterations(20);

/// One tick of the figure's growth, from a tenth to full size, painted.
void FigureGrown(benchmark::State& state) {
    OpenSheet sheet;
    for (auto _ : state) {
        state.PauseTiming();
        sheet.Paper().ShowWiz(true);
        state.ResumeTiming();
        auto* timer = sheet.Paper().findChild<QTimer*>(QStringLiteral("wizIn"));
        while (timer->isActive()) {
            QMetaObject::invokeMethod(timer, "timeout");
            benchmark::DoNotOptimize(sheet.Paper().grab());
        }
    }
}
BENCHMARK(FigureGrown)->Unit(benchmark::kMillisecond)->Iterations(20);

/// A page of the help with a worked example until it is painted.
void HelpPagePainted(benchmark::State& state) {
    FrmHelp help;
    for (auto _ : state) {
        state.PauseTiming();
        help.ShowTopic("Solving Equations");
        state.ResumeTiming();
        help.ShowTopic("Fraction Arithmetic");
        benchmark::DoNotOptimize(help.grab());
    }
}
BENCHMARK(HelpPagePainted)->Unit(benchmark::kMillisecond);

/// A key in the help's search box until the pages found are painted.
void HelpSearched(benchmark::State& state) {
    FrmHelp help;
    help.ShowPage();
    auto* box = help.findChild<QLineEdit*>(QStringLiteral("search"));
    bool more = true;
    for (auto _ : state) {
        box->setText(more ? QStringLiteral("fraction denominators") : QStringLiteral("e"));
        more = !more;
        benchmark::DoNotOptimize(help.grab());
    }
}
BENCHMARK(HelpSearched)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace numerello
