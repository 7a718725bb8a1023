#include "core/bounds.h"

#include <gtest/gtest.h>

#include <string>

#include "core/failure.h"

namespace numerello {
namespace {

TEST(BoundedArray, ReadsNeutralWhereNothingWasWritten) {
    BoundedArray<int, 200> levels(99);
    const auto& read = levels;
    EXPECT_EQ(read[200], 99);
    levels[3] = 1;
    EXPECT_EQ(read[2], 99);
    EXPECT_EQ(read[3], 1);
}

TEST(BoundedArray, AnIndexPastItsBoundsIsAFormatFailure) {
    BoundedArray<std::string, 200> lines;
    lines[200] = "last";
    for (const int index : {-1, 201}) {
        try {
            lines[index] = "past";
            FAIL() << index;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::Format);
        }
    }
    EXPECT_THROW(static_cast<void>(std::as_const(lines)[201]), Failure);
}

TEST(BoundedArray, ACellCanBeCopiedToAHigherOne) {
    BoundedArray<std::string, 2000> cells;
    cells[4] = "a text that is too long to be kept in the string itself";
    cells[1900] = cells[4];
    EXPECT_EQ(cells[1900], "a text that is too long to be kept in the string itself");
}

TEST(BoundedArray, ClearsAllOrARange) {
    BoundedArray<std::string, 25> names;
    names[1] = "x";
    names[20] = "y";
    names[21] = "z";
    names.Clear(0, 20);
    EXPECT_EQ(names[1], "");
    EXPECT_EQ(names[20], "");
    EXPECT_EQ(names[21], "z");
    names.Clear();
    EXPECT_EQ(names[21], "");
}

}  // namespace
}  // namespace numerello
