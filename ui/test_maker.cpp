#include "ui/test_maker.h"

#include "app/solvers.h"
#include "output/answer_key.h"
#include "output/practice_test.h"

namespace numerello {

TestMaker MakerOfTests(const Clock& clock, const AnswerSettings& settings) {
    return [&clock, &settings](std::span<const TestRow> rows) {
        MersenneSource digits;
        MersenneSource direct;
        ExampleDraws draws(clock, digits, direct);
        PracticeTest test;
        CreatePracticeTest(rows, test, draws);
        return MadeTest{test.Lines(), [problems = std::move(test.problems), &settings] {
                            return AnswerKey(problems, settings, AllSolvers());
                        }};
    };
}

}  // namespace numerello
