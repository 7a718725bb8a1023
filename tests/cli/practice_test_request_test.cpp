#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

Json AskWith(const Json& rows, const Json& more = Json::object()) {
    Json request{{"do", "practice-test"}, {"rows", rows}};
    request.update(more);
    return Ask(request.dump());
}

TEST(PracticeTestRequest, AnswersTheLines) {
    const Json answer = AskWith({{{"topic", "Addition"}, {"count", 2}, {"complex", false}},
                                 {{"topic", "Gram Conversions"}, {"count", 1}, {"complex", true}}},
                                {{"id", "t"}, {"clock", "0000"}});
    EXPECT_EQ(FieldsOf(answer), (std::vector<std::string>{"id", "ok", "lines", "failure"}));
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("failure"), nullptr);
    const Json& lines = answer.at("lines");
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0], "");
    EXPECT_EQ(lines[1], "Add:");
    EXPECT_EQ(lines[2].get<std::string>().substr(2), lines[3].get<std::string>().substr(2));
    EXPECT_EQ(lines[3].get<std::string>().substr(0, 3), "2) ");
    EXPECT_EQ(lines[4], "");
    EXPECT_EQ(lines[5], "");
    EXPECT_EQ(lines[6].get<std::string>().substr(0, 3), "3) ");
}

TEST(PracticeTestRequest, IsTheSameForTheSameMomentAndSeed) {
    const Json rows = {{{"topic", "Arithmetic"}, {"count", 20}, {"complex", true}}};
    const Json once = AskWith(rows, {{"clock", "1234"}, {"seed", 5}});
    EXPECT_EQ(once, AskWith(rows, {{"clock", "1234"}, {"seed", 5}}));
    EXPECT_NE(once, AskWith(rows, {{"clock", "1234"}, {"seed", 6}}));
}

TEST(PracticeTestRequest, RepeatsNoProblemRightAwayWithoutAClock) {
    const Json lines = AskWith({{{"topic", "Addition"}, {"count", 50}}}).at("lines");
    ASSERT_EQ(lines.size(), 52U);
    const auto problem = [&lines](std::size_t i) {
        const auto line = lines[i].get<std::string>();
        return line.substr(line.find(')'));
    };
    for (std::size_t i = 3; i < lines.size(); ++i) {
        EXPECT_NE(problem(i), problem(i - 1)) << i;
    }
}

TEST(PracticeTestRequest, ATestThatIsTooLongKeepsItsLines) {
    const Json answer = AskWith({{{"topic", "Ratios"}, {"count", 200}, {"complex", false}}});
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("failure"), "format");
    EXPECT_EQ(answer.at("lines").size(), 201U);
    EXPECT_EQ(answer.at("lines")[200].get<std::string>().substr(0, 5), "199) ");
}

TEST(PracticeTestRequest, RefusesWhatItCannotUse) {
    const Json good = {{"topic", "Ratios"}, {"count", 1}, {"complex", false}};
    EXPECT_EQ(AskWith(std::vector<Json>(10, good)).at("ok"), true);
    EXPECT_EQ(AskWith(std::vector<Json>(11, good)).at("ok"), false);
    EXPECT_EQ(AskWith(Json::array()).at("ok"), false);
    EXPECT_EQ(AskWith(good).at("ok"), false);
    EXPECT_EQ(AskWith({1}).at("ok"), false);
    EXPECT_EQ(AskWith({good}, {{"topic", "Ratios"}}).at("ok"), false);
    EXPECT_EQ(AskWith({good}, {{"clock", "7777"}}).at("ok"), false);
    EXPECT_EQ(Ask(R"({"do":"practice-test"})").at("ok"), false);
    for (const auto& [name, value] : std::vector<std::pair<std::string, Json>>{
             {"topic", "Lengths"},
             {"topic", "Means"},
             {"topic", ""},
             {"topic", 3},
             {"count", -1},
             {"count", 201},
             {"count", 1.5},
             {"count", "1"},
             {"complex", 2},
             {"code", 78},
         }) {
        Json row = good;
        row[name] = value;
        EXPECT_EQ(AskWith(std::vector<Json>{row}).at("ok"), false) << row;
    }
    for (const char* name : {"topic", "count"}) {
        Json row = good;
        row.erase(name);
        EXPECT_EQ(AskWith(std::vector<Json>{row}).at("ok"), false) << name;
    }
}

}  // namespace
}  // namespace numerello
