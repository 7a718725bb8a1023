#include "cli/saved_request.h"

#include "cli/requests.h"
#include "tests/core/temporary_folder.h"

namespace numerello {
namespace {

class SavedRequestTest : public TemporaryFolder {
  protected:
    Json RequestFor(const std::string& text) {
        Put(Path("a.nrl"), text);
        return SavedRequest(Path("a.nrl"));
    }

    std::string WhyUnusable(const std::string& text) {
        try {
            return RequestFor(text).dump();
        } catch (const FileError& error) {
            return error.what();
        }
    }
};

TEST_F(SavedRequestTest, IsTheRequestOfALearnerWhoTypesTheLine) {
    const Json expected = {{"do", "solve"},    {"topic", "Arithmetic"},
                           {"problem", "4+3"}, {"boxes", {"", "", "", "", "", ""}},
                           {"filled", true},   {"lists", {-1, -1, 0}}};
    EXPECT_EQ(
        RequestFor("Arithmetic BB 4+3 BB 9 BB  BB  BB  BB  BB  BB 5 BB -1 BB 3 BB 91\n").dump(),
        expected.dump());
}

TEST_F(SavedRequestTest, FillsBoxesAndListsAndLeavesTheLineOut) {
    const Json expected = {{"do", "solve"},  {"topic", "Meter Conversions"},
                           {"problem", ""},  {"boxes", {"", "", "", "2.5", "", ""}},
                           {"filled", true}, {"lists", {6, -1, 0}}};
    EXPECT_EQ(
        RequestFor("Meter Conversions BB 4+3 BB 9 BB  BB  BB 2.5 BB  BB  BB 6 BB 7 BB 3 BB 23")
            .dump(),
        expected.dump());
}

TEST_F(SavedRequestTest, IsAnsweredAsAnyOther) {
    const Json answer = Answer(
        RequestFor("Meter Conversions BB  BB  BB  BB  BB 2.5 BB  BB  BB 6 BB 3 BB 0 BB 23\r\n"),
        nullptr);
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("lines").back().at("text"), "2.5 km = 2500 m");
}

TEST_F(SavedRequestTest, RefusedCharactersAreTold) {
    const Json answer = Answer(RequestFor("Arithmetic BB 4+\bx\xFF"
                                          "3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91"),
                               nullptr);
    EXPECT_EQ(answer.at("problem"), "4+3");
    ASSERT_EQ(answer.at("refused").size(), 2U);
    EXPECT_EQ(answer.at("refused")[0].at("key"), "x");
    EXPECT_EQ(answer.at("refused")[1].at("key"), "\xEF\xBF\xBD");
}

TEST_F(SavedRequestTest, BoxesThatAreNotReadyAreNotSolved) {
    const Json answer = Answer(
        RequestFor("Addition BB  BB 47 BB xy BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 200"), nullptr);
    EXPECT_EQ(answer.at("ok"), true);
    EXPECT_EQ(answer.at("solvable"), false);
}

TEST_F(SavedRequestTest, AFileThatCannotBeUsedSaysWhy) {
    EXPECT_EQ(WhyUnusable(""), "has fewer than twelve fields");
    EXPECT_EQ(WhyUnusable("Arithmetic BB 4+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0"),
              "has fewer than twelve fields");
    EXPECT_EQ(WhyUnusable("Arithmetic BB 4+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB \n"),
              "has no topic code in its twelfth field");
    EXPECT_EQ(WhyUnusable("Algebra BB 4+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91"),
              "names no topic of the catalogue");
    EXPECT_EQ(WhyUnusable(std::string(1048577, 'a')), "is longer than 1048576 bytes");
    EXPECT_THROW(SavedRequest(Path("none.nrl")), FileError);
    EXPECT_THROW(SavedRequest(folder), FileError);
    EXPECT_THROW(SavedRequest(""), FileError);
}

}  // namespace
}  // namespace numerello
