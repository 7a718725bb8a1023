#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "app/solvers.h"
#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "columns/steps.h"
#include "core/erasing.h"
#include "core/solve_driver.h"
#include "tests/learners.h"

namespace numerello {

constexpr int kAddition = 200;
constexpr int kSubtraction = 201;
constexpr int kMultiplication = 202;
constexpr int kDivision = 203;

/// To three decimals, without trailing zeros.
inline std::string PlaceText(double value) {
    std::ostringstream out;
    out.precision(10);
    out << std::round(value * 1000) / 1000;
    return out.str();
}

/// A text as text@x,y with /size unless that is 12 and an r when red, a stroke as <x1,y1 x2,y2
/// wWIDTH>.
inline std::string Written(const TextMark& mark) {
    std::string text = mark.text + "@" + PlaceText(mark.x) + "," + PlaceText(mark.y);
    text += mark.font.size == 12 ? "" : "/" + PlaceText(mark.font.size);
    EXPECT_TRUE(mark.color == kBlack || mark.color == kRed);
    return text + (mark.color == kRed ? "r" : "");
}

inline std::string Written(const StrokeMark& mark) {
    EXPECT_EQ(mark.color, kBlack);
    return "<" + PlaceText(mark.x1) + "," + PlaceText(mark.y1) + " " + PlaceText(mark.x2) + "," +
           PlaceText(mark.y2) + " w" + PlaceText(mark.width) + ">";
}

inline std::string Written(const ImageMark& mark) {
    return "picture " + mark.key;
}

/// One drawing of a column problem.
struct Frame {
    std::string note;
    std::vector<Mark> marks;
    double endX = 0;
    double endY = 0;
    bool finished = false;

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Mark& mark : marks) {
            texts.push_back(std::visit([](const auto& each) { return Written(each); }, mark));
        }
        return texts;
    }
};

/// A column problem, filled in and played on a page with plain metrics.
class Film : public Stage {
  public:
    Film(int code, const std::string& Text1, const std::string& Text2, bool stepwise = true) {
        MersenneSource random;
        TreeViewSelect(FindTopicByCode(code)->caption, problem.topic, FixedClock(0), random);
        EraseProblem(problem, *this);
        problem.boxes.Text[0] = Text1;
        problem.boxes.Text[1] = Text2;
        problem.settings.mnuShowStep = stepwise;
    }

    void DrawColumns() override {
        finished = false;
        StepColumns(problem, page, learner, [this] {
            finished = true;
            problem.columns.ClearFlags();
        });
    }

    void Solve() {
        failure = compute_Click(problem, AllSolvers(), learner, *this);
        Record();
    }

    void NextStep() {
        ++problem.playback.ShownStep;
        failure = Trapped(problem, learner, [this] { DrawColumns(); });
        Record();
    }

    /// Solves, and goes on until the work is finished, has failed, or fills so many frames.
    Film& Play(std::size_t mostFrames = 200) {
        Solve();
        while (problem.columns.Any() && frames.size() < mostFrames) {
            NextStep();
        }
        return *this;
    }

    std::vector<std::string> Notes() const {
        std::vector<std::string> notes;
        for (const Frame& frame : frames) {
            notes.push_back(frame.note);
        }
        return notes;
    }

    const Frame& Last() const { return frames.back(); }

    Problem problem;
    NotingLearner learner;
    std::vector<Frame> frames;
    std::optional<FailureKind> failure;

  private:
    void Record() {
        if (failure) {
            return;
        }
        const Playback& playback = problem.playback;
        frames.push_back({problem.log.StepNote[playback.ShownStep], page.Marks(), playback.LineEndX,
                          playback.LineEndY, finished});
    }

    static inline const PlainMetrics kMetrics;
    Surface page{kMetrics, {std::string(kSheetFace), 12}};
    bool finished = false;
};

}  // namespace numerello
