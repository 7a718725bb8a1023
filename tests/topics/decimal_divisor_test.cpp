#include "tests/topics/solver_log.h"

namespace numerello {
namespace {

/// No key types a point into this list; a text with one has no divisor to be told.
TEST(FindGCF, OfANumberThatIsNotWholeIsEmpty) {
    for (const char* list : {"2.5,5", "5,2.5"}) {
        const Problem problem = Solved(87, list);
        EXPECT_EQ(problem.log.StepText.Get(3), "") << list;
        EXPECT_EQ(problem.log.StepNote.Get(3), std::string(" is the GCF of ") + list + ".");
    }
}

}  // namespace
}  // namespace numerello
