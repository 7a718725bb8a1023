#include "cli/column_picture.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

Mark Digits(const char* digits, double x, double y) {
    return TextMark{digits, x, y, {"VantrelFont", 12}, kBlack};
}

TEST(ColumnPicture, HasCellsOfTwoCharacters) {
    const std::vector<Mark> marks{Digits("5", 100, 300), Digits("2", 120, 300),
                                  Digits("-", 80, 320), Digits("7", 120, 320),
                                  StrokeMark{80, 340, 135, 340, 2, kBlack}};
    EXPECT_EQ(ColumnPicture(marks), (std::vector<std::string>{"  5 2", "-   7", "-------"}));
}

TEST(ColumnPicture, KeepsNumbersOfTwoDigitsApart) {
    const std::vector<Mark> marks{Digits("0", 100, 300),  Digits("10", 120, 300),
                                  Digits("10", 140, 300), Digits("1", 100, 320),
                                  Digits("0", 120, 320),  Digits("0", 140, 320)};
    EXPECT_EQ(ColumnPicture(marks), (std::vector<std::string>{"0  10 10", "1  0  0"}));
}

}  // namespace
}  // namespace numerello
