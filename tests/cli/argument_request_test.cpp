#include "cli/argument_request.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

using Texts = std::vector<std::string>;

class SolveRequestOfArguments : public testing::Test {
  protected:
    std::string WhyBad(Texts SolveArguments::*list, const std::string& argument) {
        arguments.*list = {argument};
        try {
            SolveRequestOf(arguments);
        } catch (const BadArgument& bad) {
            (arguments.*list).clear();
            return bad.what();
        }
        return "it is good";
    }

    SolveArguments arguments;
};

TEST_F(SolveRequestOfArguments, TypesTheLine) {
    arguments.topic = "Arithmetic";
    arguments.problem = "1+2";
    EXPECT_EQ(SolveRequestOf(arguments),
              Json::parse(R"({"do":"solve","topic":"Arithmetic","problem":"1+2",
        "boxes":["","","","","",""],"filled":false,"lists":[-1,-1,0],"answers":[],
        "settings":{}})"));
}

TEST_F(SolveRequestOfArguments, PutsTextsIntoTheirBoxesAndRowsIntoTheirLists) {
    arguments.boxes = {"6=a=b", "1=5"};
    arguments.lists = {"3=2", "1=0"};
    const Json request = SolveRequestOf(arguments);
    EXPECT_EQ(request.at("boxes"), Json::parse(R"(["5","","","","","a=b"])"));
    EXPECT_EQ(request.at("lists"), Json::parse("[0,-1,2]"));
}

TEST_F(SolveRequestOfArguments, ReadsSettingsByWhatTheyLookLike) {
    arguments.answers = {"y"};
    arguments.settings = {"RoundDigits=4", "UseFractions=false", "Other=4.5"};
    const Json request = SolveRequestOf(arguments);
    EXPECT_EQ(request.at("answers"), Json::parse(R"(["y"])"));
    EXPECT_EQ(request.at("settings"),
              Json::parse(R"({"RoundDigits":4,"UseFractions":false,"Other":"4.5"})"));
}

TEST_F(SolveRequestOfArguments, RefusesWhatMakesNoSense) {
    using A = SolveArguments;
    EXPECT_EQ(WhyBad(&A::boxes, "5"), "5: needs the form KEY=VALUE");
    EXPECT_EQ(WhyBad(&A::boxes, "7=1"), "7: must be a number from 1 to 6");
    EXPECT_EQ(WhyBad(&A::boxes, "one=1"), "one: must be a number from 1 to 6");
    EXPECT_EQ(WhyBad(&A::lists, "0=1"), "0: must be a number from 1 to 3");
    EXPECT_EQ(WhyBad(&A::settings, "RoundDigits"), "RoundDigits: needs the form KEY=VALUE");
}

TEST_F(SolveRequestOfArguments, LeavesToColumnsWhatTheyHave) {
    arguments.topic = "Addition";
    arguments.boxes = {"1=5", "2=7"};
    EXPECT_EQ(ColumnsRequestOf(SolveRequestOf(arguments)),
              Json::parse(R"({"do":"columns","topic":"Addition",
        "boxes":["5","7","","","",""],"filled":false,"settings":{}})"));
}

}  // namespace
}  // namespace numerello
