#include <gtest/gtest.h>

#include <string>

#include "core/bounds.h"
#include "core/failure.h"

namespace numerello {
namespace {

TEST(BoundedArray, GetReadsWhatIsThere) {
    BoundedArray<std::string, 25> names("none");
    names[4] = "x";
    EXPECT_EQ(names.Get(4), "x");
    EXPECT_EQ(names.Get(3), "none");
    EXPECT_EQ(names.Get(25), "none");
}

TEST(BoundedArray, GetKeepsWithinTheBounds) {
    const BoundedArray<int, 25> numbers;
    EXPECT_THROW(numbers.Get(-1), Failure);
    EXPECT_THROW(numbers.Get(26), Failure);
}

}  // namespace
}  // namespace numerello
