#include "help/topic_texts.h"

#include <gtest/gtest.h>

#include "help/help_error.h"

namespace numerello {

namespace {

TEST(TopicTexts, ReadsParagraphs) {
    const auto topics = ReadTopicTexts(
        "# a remark\n\nFirst Topic\nabout: one\n  two\nproblem: 1/2:3\n"
        "answer: 4\nanswer: 5\n\nSecond\nabout: x\nbox 2: -7\nlist 1: 6");
    ASSERT_EQ(topics.size(), 2U);
    EXPECT_EQ(topics[0].caption, "First Topic");
    EXPECT_EQ(topics[0].about, "one two");
    EXPECT_EQ(topics[0].problem, "1/2:3");
    EXPECT_EQ(topics[0].answers, (std::vector<std::string>{"4", "5"}));
    EXPECT_EQ(topics[1].boxes.Text[1], "-7");
    EXPECT_EQ(topics[1].boxes.ListIndex[0], 6);
    EXPECT_EQ(topics[1].boxes.ListIndex[1], EntryBoxes::kNoChoice);
}

TEST(TopicTexts, RefusesLinesThatNobodyReads) {
    for (const char* line :
         {"colour: red", "box 7: 1", "box 0: 1", "list 4: 1", "list 1: x", "box: 1", "no colon"}) {
        EXPECT_THROW(ReadTopicTexts(std::string("Topic\n") + line + "\n"), HelpError) << line;
    }
}

TEST(TopicTexts, ReadsNothingFromNothing) {
    EXPECT_TRUE(ReadTopicTexts("").empty());
    EXPECT_TRUE(ReadTopicTexts("# only a remark").empty());
}

}  // namespace

}  // namespace numerello
