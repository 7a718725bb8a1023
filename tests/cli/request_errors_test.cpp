#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

/// A line, and why it is no usable request.
struct Unusable {
    std::string request;
    std::string error;
};

void ExpectRefused(const Unusable& line) {
    SCOPED_TRACE(line.request.substr(0, 200));
    const Json answer = Ask(line.request);
    ASSERT_TRUE(answer.is_object());
    EXPECT_EQ(FieldsOf(answer), (std::vector<std::string>{"id", "ok", "error"}));
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_EQ(answer.at("error"), line.error);
}

void ExpectAllRefused(const std::vector<Unusable>& lines) {
    for (const Unusable& line : lines) {
        ExpectRefused(line);
    }
}

std::string Brackets(std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
}

TEST(RequestErrors, WhatIsNoJsonIsRefused) {
    for (const char* line :
         {"x", "{", "{}}", "{'do':'topics'}", R"({"do":"topics",})", "[1,2",
          "{\"do\":\"topics\"} x", "\xFF", "{\"do\":\"\xC3\"}", R"({"do":"topics","id":1e999})"}) {
        ExpectRefused({line, "not JSON"});
    }
}

TEST(RequestErrors, WhatIsNoObjectIsRefused) {
    for (const char* line : {"1", "null", R"("solve")", "[]", R"([{"do":"topics"}])"}) {
        ExpectRefused({line, "not a JSON object"});
    }
}

TEST(RequestErrors, ANulByteEndsNoLine) {
    const std::string nul(1, '\0');
    const std::string good = R"({"do":"topics"})";
    ExpectRefused({good + nul, "not JSON"});
    ExpectRefused({good + nul + "x", "not JSON"});
    ExpectRefused({"{" + nul + R"("do":"topics"})", "not JSON"});
}

TEST(RequestErrors, ARequestNeedsTheNameOfOne) {
    ExpectAllRefused({{"{}", R"("do" is missing)"},
                      {R"({"topic":"Multiples"})", R"("do" is missing)"},
                      {R"({"do":"dance"})", R"(unknown request "dance")"},
                      {R"({"do":""})", R"(unknown request "")"},
                      {R"({"do":3})", R"("do" must be a string)"},
                      {R"({"do":null})", R"("do" must be a string)"}});
}

TEST(RequestErrors, AKeyThatIsGivenTwiceIsNamed) {
    ExpectAllRefused({{R"({"do":"topics","do":"topics"})", R"(the key "do" is given twice)"},
                      {R"({"do":"solve","code":53,"problem":"1","problem":"2"})",
                       R"(the key "problem" is given twice)"},
                      {R"({"do":"solve","code":53,"settings":{"RoundDigits":1,"RoundDigits":2}})",
                       R"(the key "RoundDigits" is given twice)"}});
    EXPECT_EQ(Ask(R"({"id":9,"do":"topics","do":"topics"})").at("id"), 9);
    EXPECT_EQ(Ask(R"({"do":"topics","id":{"a":{"x":1},"b":{"x":1}}})").at("ok"), true);
}

TEST(RequestErrors, AnObjectHasAThousandKeysAtMost) {
    const auto objectOf = [](int keys) {
        std::string object = "{";
        for (int i = 0; i < keys; ++i) {
            object += (i == 0 ? "\"k" : ",\"k") + std::to_string(i) + "\":1";
        }
        return object + "}";
    };
    const std::string tooMany = "an object has too many keys";
    EXPECT_EQ(Ask(R"({"do":"topics","id":)" + objectOf(1000) + "}").at("ok"), true);
    ExpectRefused({R"({"do":"topics","id":)" + objectOf(1001) + "}", tooMany});
    ExpectRefused({objectOf(60000), tooMany});
}

TEST(RequestErrors, WhatIsNestedTooDeeplyIsNeverBuilt) {
    const std::string tooDeep = "nested too deeply";
    EXPECT_EQ(Ask(R"({"id":8,"x":)" + Brackets(300) + "}").at("id"), 8);
    EXPECT_EQ(Ask(R"({"id":)" + Brackets(300) + "}").at("id"), nullptr);
    ExpectRefused({R"({"do":"topics","id":)" + Brackets(100000) + "}", tooDeep});
    ExpectRefused({std::string(100000, '['), tooDeep});
    EXPECT_EQ(Ask(R"({"do":"topics","id":)" + Brackets(100) + "}").at("ok"), true);
}

TEST(RequestErrors, AnUnknownFieldIsNamedAsIsOneOfAnotherRequest) {
    ExpectAllRefused(
        {{R"({"do":"topics","colour":1})", R"(unknown field "colour")"},
         {R"({"do":"topics","topic":"Multiples"})", R"(unknown field "topic")"},
         {R"({"do":"type","code":53,"keys":"1","problem":"1"})", R"(unknown field "problem")"},
         {R"({"do":"solve","code":53,"keys":"1"})", R"(unknown field "keys")"},
         {R"({"do":"solve","code":53,"clock":"0000"})", R"(unknown field "clock")"},
         {R"({"do":"typeset","variant":"paper","text":"1","code":53})", R"(unknown field "code")"},
         {R"({"do":"solve","code":53,"settings":{"mnuPencil":true}})",
          R"(unknown field "mnuPencil")"}});
}

TEST(RequestErrors, ATopicIsNamedByItsExactCaptionOrItsCode) {
    const std::string onlyOne = R"(give exactly one of "topic" and "code")";
    ExpectAllRefused({{R"({"do":"solve","problem":"1"})", onlyOne},
                      {R"({"do":"solve","topic":"Converting Inches To Yards","code":53})", onlyOne},
                      {R"({"do":"solve","topic":"Converting inches to yards"})",
                       R"(unknown topic "Converting inches to yards")"},
                      {R"({"do":"solve","topic":"Lengths"})", R"(unknown topic "Lengths")"},
                      {R"({"do":"solve","topic":""})", R"(unknown topic "")"},
                      {R"({"do":"solve","topic":53})", R"("topic" must be a string)"}});
    const Unusable codes[] = {
        {"0", "unknown code 0"},
        {"122", "unknown code 122"},
        {"-53", "unknown code -53"},
        {"55", "unknown code 55"},
        {"999999999999", R"("code" must be from -2147483647 to 2147483647)"},
        {"53.0", R"("code" must be a whole number)"},
        {"\"53\"", R"("code" must be a whole number)"},
        {"1e3", R"("code" must be a whole number)"},
    };
    for (const auto& [code, error] : codes) {
        ExpectRefused({R"({"do":"solve","problem":"1","code":)" + code + "}", error});
    }
}

TEST(RequestErrors, AFieldOfAWrongTypeOrOutOfItsRangeIsNamed) {
    const Unusable fields[] = {
        {R"("problem":1)", R"("problem" must be a string)"},
        {R"("problem":null)", R"("problem" must be a string)"},
        {R"("problem":"4\b")", R"("problem" holds a Backspace)"},
        {R"("boxes":"1")", R"("boxes" must be an array)"},
        {R"("boxes":[1])", R"("boxes" must be an array of strings)"},
        {R"("boxes":["1","2","3","4","5","6","7"])", R"("boxes" has more than 6 entries)"},
        {R"("filled":1)", R"("filled" must be true or false)"},
        {R"("lists":[0,0,0,0])", R"("lists" has more than 3 entries)"},
        {R"("lists":[-2])", R"("lists" must be from -1 to 6)"},
        {R"("lists":[7])", R"("lists" must be from -1 to 6)"},
        {R"("lists":[1.0])", R"("lists" must be a whole number)"},
        {R"("lists":["1"])", R"("lists" must be a whole number)"},
        {R"("lists":{})", R"("lists" must be an array)"},
        {R"("answers":"x")", R"("answers" must be an array)"},
        {R"("answers":[1])", R"("answers" must be an array of strings)"},
        {R"("settings":[])", R"("settings" must be an object)"},
        {R"("settings":{"RoundDigits":0})", R"("RoundDigits" must be from 1 to 5)"},
        {R"("settings":{"RoundDigits":6})", R"("RoundDigits" must be from 1 to 5)"},
        {R"("settings":{"RoundDigits":2.0})", R"("RoundDigits" must be a whole number)"},
        {R"("settings":{"RoundDigits":"2"})", R"("RoundDigits" must be a whole number)"},
        {R"("settings":{"UseFractions":1})", R"("UseFractions" must be true or false)"},
        {R"("settings":{"DetailLevel":4})", R"("DetailLevel" must be from 1 to 3)"},
        {R"("settings":{"ExpDetail":0})", R"("ExpDetail" must be from 1 to 3)"},
        {R"("settings":{"ComplexEx":1})", R"("ComplexEx" must be 0 or 2)"},
        {R"("settings":{"ComplexEx":3})", R"("ComplexEx" must be from 0 to 2)"},
        {R"("settings":{"mnuShowStep":"true"})", R"("mnuShowStep" must be true or false)"},
        {R"("settings":{"RoundDigits":18446744073709551615})",
         R"("RoundDigits" must be from 1 to 5)"},
    };
    for (const auto& [field, error] : fields) {
        ExpectRefused({R"({"do":"solve","code":53,)" + field + "}", error});
    }
}

}  // namespace
}  // namespace numerello
