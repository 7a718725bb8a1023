#include "cli/people.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

std::string Printed(Writing writing) {
    std::ostringstream out;
    std::ostringstream err;
    const Json answer =
        Ask(R"({"do":"solve","topic":"Calculating With Exponents","problem":"3^2/4"})");
    EXPECT_EQ(PrintSolved(answer, writing, out, err), kWorked) << err.str();
    return out.str();
}

TEST(PrintSolved, KeepsTheMarksForPrograms) {
    EXPECT_TRUE(Printed(Writing::Marks).starts_with("#3^2^/4#\n\n")) << Printed(Writing::Marks);
}

TEST(PrintSolved, WritesReadablyForPeople) {
    const std::string text = Printed(Writing::Readable);
    EXPECT_TRUE(text.starts_with("3²/4\n\n")) << text;
    EXPECT_EQ(text.find_first_of("#^~"), std::string::npos) << text;
}

}  // namespace
}  // namespace numerello
