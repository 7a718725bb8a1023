#include "catalogue/entry_text.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

TEST(EntryText, NamesBoxesAndChoices) {
    EntryBoxes boxes;
    boxes.Text = {"4", "5", "", "6"};
    EXPECT_EQ(EntryText(2, "", boxes), "radius = 5, height = 4");
    EXPECT_EQ(EntryText(18, "", boxes), "diameter = 5");
    EXPECT_EQ(EntryText(20, "", boxes),
              "First numerator = 4, First denominator = 5, Second numerator = ?, Second "
              "denominator = 6");
    boxes.ListIndex = {3, -1, 6};
    EXPECT_EQ(EntryText(24, "", boxes), "Value = 6, From g (1 gram), To ?");
    EXPECT_EQ(EntryText(98, "4.5", boxes), "4.5, Rounded to the nearest thousandth");
    EXPECT_EQ(EntryText(54, "40", boxes), "40");
}

TEST(ListsOf, HasTheRowsOfTheForm) {
    EXPECT_TRUE(ListsOf(1).empty());
    EXPECT_TRUE(ListsOf(91).empty());
    const std::vector<EntryListRows> lengths = ListsOf(23);
    ASSERT_EQ(lengths.size(), 2U);
    EXPECT_EQ(lengths[1].number, 2);
    EXPECT_EQ(lengths[1].name, "To");
    EXPECT_EQ(lengths[0].rows.front(), "mm (0.001 meters)");
    EXPECT_EQ(lengths[0].rows.size(), 7U);
    EXPECT_EQ(ListsOf(98).at(0).number, 3);
}

}  // namespace
}  // namespace numerello
