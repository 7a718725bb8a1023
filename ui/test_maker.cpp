#include "ui/test_maker.h"

#include "app/solvers.h"
#include "output/answer_key.h"
#include "output/practice_test.h"

namespace numerello {

TestMaker MakerOfTests(const Clock& clock, const AnswerSettings& settings) {
    return [&clock, &settings](std::span<const TestRow> rows) {
        MersenneSource digits;
        MersenneSource direct;
        SteppingClock moments(clock);
        ExampleDraws draws(moments, digits, direct);
        PracticeTest test;
        CreatePracticeTest(rows, test, draws, &moments);
        return MadeTest{test.Lines(), [problems = std::move(test.problems), &settings] {
                            return AnswerKey(problems, settings, AllSolvers());
                        }};
    };
}

}  // namespace numerello
