#include <gtest/gtest.h>

#include "tests/cli/ask.h"

namespace numerello {
namespace {

void ExpectRefused(std::string_view request) {
    const Json answer = Ask(request);
    ASSERT_TRUE(answer.is_object()) << request;
    EXPECT_EQ(FieldsOf(answer), (std::vector<std::string>{"id", "ok", "error"})) << request;
    EXPECT_EQ(answer.at("ok"), false) << request;
    EXPECT_FALSE(answer.at("error").get<std::string>().empty()) << request;
}

TEST(RequestErrors, NoJson) {
    for (const char* line :
         {"x", "{", "{}}", "{'do':'topics'}", R"({"do":"topics",})", "[1,2",
          "{\"do\":\"topics\"} x", "\xFF", "{\"do\":\"\xC3\"}", R"({"do":"topics","id":1e999})"}) {
        ExpectRefused(line);
    }
}

TEST(RequestErrors, NoObject) {
    for (const char* line : {"1", "null", R"("solve")", "[]", R"([{"do":"topics"}])"}) {
        ExpectRefused(line);
    }
}

TEST(RequestErrors, MissingOrUnknownDo) {
    ExpectRefused("{}");
    ExpectRefused(R"({"topic":"Multiples"})");
    ExpectRefused(R"({"do":"dance"})");
    ExpectRefused(R"({"do":""})");
    ExpectRefused(R"({"do":3})");
    ExpectRefused(R"({"do":null})");
}

TEST(RequestErrors, AKeyGivenTwice) {
    ExpectRefused(R"({"do":"topics","do":"topics"})");
    ExpectRefused(R"({"do":"solve","code":53,"problem":"1","problem":"2"})");
    ExpectRefused(R"({"do":"solve","code":53,"settings":{"RoundDigits":1,"RoundDigits":2}})");
    EXPECT_EQ(Ask(R"({"id":9,"do":"topics","do":"topics"})").at("id"), 9);
    EXPECT_EQ(Ask(R"({"do":"topics","id":{"a":{"x":1},"b":{"x":1}}})").at("ok"), true);
}

TEST(RequestErrors, ANulByte) {
    const std::string nul(1, '\0');
    const std::string good = R"({"do":"topics"})";
    ExpectRefused(good + nul);
    ExpectRefused(good + nul + "x");
    ExpectRefused("{" + nul + R"("do":"topics"})");
}

TEST(RequestErrors, TooManyKeys) {
    const auto objectOf = [](int keys) {
        std::string object = "{";
        for (int i = 0; i < keys; ++i) {
            object += (i == 0 ? "\"k" : ",\"k") + std::to_string(i) + "\":1";
        }
        return object + "}";
    };
    EXPECT_EQ(Ask(R"({"do":"topics","id":)" + objectOf(1000) + "}").at("ok"), true);
    ExpectRefused(R"({"do":"topics","id":)" + objectOf(1001) + "}");
    ExpectRefused(objectOf(60000));
}

TEST(RequestErrors, TooDeepNesting) {
    EXPECT_EQ(Ask(R"({"id":8,"x":)" + std::string(300, '[') + std::string(300, ']') + "}").at("id"),
              8);
    EXPECT_EQ(Ask(R"({"id":)" + std::string(300, '[') + std::string(300, ']') + "}").at("id"),
              nullptr);
    ExpectRefused(R"({"do":"topics","id":)" + std::string(100000, '[') + std::string(100000, ']') +
                  "}");
    ExpectRefused(std::string(100000, '['));
    EXPECT_EQ(Ask(R"({"do":"topics","id":)" + std::string(100, '[') + std::string(100, ']') + "}")
                  .at("ok"),
              true);
}

TEST(RequestErrors, UnknownFieldsAndThoseOfOthers) {
    ExpectRefused(R"({"do":"topics","colour":1})");
    ExpectRefused(R"({"do":"topics","topic":"Multiples"})");
    ExpectRefused(R"({"do":"type","code":53,"keys":"1","problem":"1"})");
    ExpectRefused(R"({"do":"solve","code":53,"keys":"1"})");
    ExpectRefused(R"({"do":"solve","code":53,"clock":"0000"})");
    ExpectRefused(R"({"do":"typeset","variant":"paper","text":"1","code":53})");
    ExpectRefused(R"({"do":"solve","code":53,"settings":{"mnuPencil":true}})");
}

TEST(RequestErrors, TopicAndCode) {
    ExpectRefused(R"({"do":"solve","problem":"1"})");
    ExpectRefused(R"({"do":"solve","topic":"Converting Inches To Yards","code":53})");
    ExpectRefused(R"({"do":"solve","topic":"Converting inches to yards"})");
    ExpectRefused(R"({"do":"solve","topic":"Lengths"})");
    ExpectRefused(R"({"do":"solve","topic":""})");
    ExpectRefused(R"({"do":"solve","topic":53})");
    for (const char* code : {"0", "122", "-53", "55", "999999999999", "53.0", "\"53\"", "1e3"}) {
        ExpectRefused(std::string(R"({"do":"solve","problem":"1","code":)") + code + "}");
    }
}

TEST(RequestErrors, WrongTypesAndRanges) {
    for (const char* field : {
             R"("problem":1)",
             R"("problem":null)",
             R"("problem":"4\b")",
             R"("boxes":"1")",
             R"("boxes":[1])",
             R"("boxes":["1","2","3","4","5","6","7"])",
             R"("filled":1)",
             R"("lists":[0,0,0,0])",
             R"("lists":[-2])",
             R"("lists":[7])",
             R"("lists":[1.0])",
             R"("lists":["1"])",
             R"("lists":{})",
             R"("answers":"x")",
             R"("answers":[1])",
             R"("settings":[])",
             R"("settings":{"RoundDigits":0})",
             R"("settings":{"RoundDigits":6})",
             R"("settings":{"RoundDigits":2.0})",
             R"("settings":{"RoundDigits":"2"})",
             R"("settings":{"UseFractions":1})",
             R"("settings":{"DetailLevel":4})",
             R"("settings":{"ExpDetail":0})",
             R"("settings":{"ComplexEx":1})",
             R"("settings":{"ComplexEx":3})",
             R"("settings":{"mnuShowStep":"true"})",
             R"("settings":{"RoundDigits":18446744073709551615})",
         }) {
        ExpectRefused(std::string(R"({"do":"solve","code":53,)") + field + "}");
    }
}

}  // namespace
}  // namespace numerello
