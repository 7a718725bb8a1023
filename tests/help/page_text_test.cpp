#include "help/page_text.h"

#include <gtest/gtest.h>

namespace numerello {

namespace {

TEST(PageText, LeavesMarksOut) {
    EXPECT_EQ(PlainText("<p>One <b>two</b>,\n three</p><p>four</p>"), "One two, three four");
}

TEST(PageText, ReadsPicturesByTheirWords) {
    EXPECT_EQ(PlainText("a <img src=\"math:page/x\" alt=\"one half\"> b"), "a one half b");
}

TEST(PageText, WritesOutCharacters) {
    EXPECT_EQ(PlainText("1 &lt; 2 &amp; 3 &gt; 2, &quot;so&quot;"), "1 < 2 & 3 > 2, \"so\"");
    EXPECT_EQ(PlainText("&amp;lt;"), "&lt;");
}

TEST(PageText, FindsTheHeading) {
    EXPECT_EQ(TitleOf("<p>x</p><h1>The <i>Sheet</i></h1>"), "The Sheet");
    EXPECT_EQ(TitleOf("<p>x</p>"), "");
    EXPECT_EQ(TitleOf("<h1>never closed"), "");
}

TEST(PageText, FindsLinksInOrder) {
    EXPECT_EQ(LinksOf("<a href=\"help:a\">x</a> <a class=\"y\" href=\"help:b\">z</a> <a>w</a>"),
              (std::vector<std::string>{"help:a", "help:b"}));
}

TEST(PageText, EndsAtAMarkThatIsNotClosed) {
    EXPECT_EQ(PlainText("one <b"), "one");
    EXPECT_EQ(TitleOf("<h1>one</h1"), "");
}

}  // namespace

}  // namespace numerello
