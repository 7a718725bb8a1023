#include <gtest/gtest.h>

#include "core/failure.h"
#include "core/problem.h"

namespace numerello {
namespace {

TEST(EntryBoxes, AreKnownByTheNumbersOfTheirNames) {
    EntryBoxes boxes;
    boxes.Box(1) = "first";
    boxes.Box(6) = "last";
    boxes.List(1) = 4;
    const EntryBoxes& read = boxes;
    EXPECT_EQ(read.Text.front(), "first");
    EXPECT_EQ(read.Text.back(), "last");
    EXPECT_EQ(read.Box(6), "last");
    EXPECT_EQ(read.ListIndex.front(), 4);
    EXPECT_EQ(read.List(2), EntryBoxes::kNoChoice);
    EXPECT_EQ(read.List(3), 0);
}

TEST(EntryBoxes, ThereAreSixBoxesAndThreeLists) {
    EntryBoxes boxes;
    const EntryBoxes& read = boxes;
    EXPECT_THROW(boxes.Box(0), Failure);
    EXPECT_THROW(boxes.Box(7), Failure);
    EXPECT_THROW(read.Box(0), Failure);
    EXPECT_THROW(boxes.List(0), Failure);
    EXPECT_THROW(read.List(4), Failure);
}

}  // namespace
}  // namespace numerello
