#include "core/step_log.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/failure.h"
#include "core/number.h"

namespace numerello {
namespace {

using Lines = std::vector<std::string>;

Lines TextsOf(const StepLog& log) {
    Lines lines;
    for (int i = 1; i < log.StepCount; ++i) {
        lines.push_back(log.StepText[i]);
    }
    return lines;
}

/// A log as the step recorder leaves it: lines "1", "2", ... with notes "note 1", ...
StepLog Recorded(int lines) {
    StepLog log;
    for (int i = 1; i <= lines; ++i) {
        log.StepLevels[log.StepCount] = 2;
        log.Write(WholeText(i), "note " + WholeText(i));
    }
    return log;
}

TEST(StepLog, StartsAtOne) {
    StepLog log;
    EXPECT_EQ(log.StepCount, 1);
    log.Write("40", "");
    log.Write("There are 12 inches in a foot.", "12 inches = 1 foot");
    EXPECT_EQ(log.StepCount, 3);
    EXPECT_EQ(log.StepText[0], "");
    EXPECT_EQ(log.StepText[1], "40");
    EXPECT_EQ(log.StepNote[1], "");
    EXPECT_EQ(log.StepText[2], "There are 12 inches in a foot.");
    EXPECT_EQ(log.StepNote[2], "12 inches = 1 foot");
}

TEST(StepLog, TheTwoHundredAndFirstLineIsAFormatFailure) {
    StepLog log;
    for (int i = 1; i <= 200; ++i) {
        log.Write("line", "");
    }
    try {
        log.Write("one too many", "");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Kind(), FailureKind::Format);
    }
    EXPECT_EQ(log.StepCount, 201);
}

TEST(ThinSteps, KeepsEverythingAtTheFirstLevel) {
    StepLog log = Recorded(5);
    ThinSteps(log, 1);
    EXPECT_EQ(TextsOf(log), (Lines{"1", "2", "3", "4", "5"}));
}

TEST(ThinSteps, KeepsOneLineInSoManyAndTheLast) {
    StepLog log = Recorded(5);
    ThinSteps(log, 2);
    EXPECT_EQ(TextsOf(log), (Lines{"1", "2", "4", "5"}));
    EXPECT_EQ(log.StepNote[3], "note 4");
    EXPECT_EQ(log.StepNote[4], "note 5");

    StepLog longer = Recorded(10);
    ThinSteps(longer, 3);
    EXPECT_EQ(TextsOf(longer), (Lines{"1", "3", "6", "9", "10"}));
}

TEST(ThinSteps, BlanksTheLinesThatGo) {
    StepLog log = Recorded(5);
    ThinSteps(log, 2);
    EXPECT_EQ(log.StepText[5], "");
    EXPECT_EQ(log.StepNote[5], "");
}

TEST(ThinSteps, NeverLosesTheAnswerOfAShortLog) {
    for (const int level : {1, 2, 3}) {
        StepLog two = Recorded(2);
        ThinSteps(two, level);
        EXPECT_EQ(TextsOf(two), (Lines{"1", "2"})) << level;
        StepLog one = Recorded(1);
        ThinSteps(one, level);
        EXPECT_EQ(TextsOf(one), (Lines{"1"})) << level;
    }
}

TEST(ThinSteps, LeavesALogAloneThatTheRecorderDidNotWrite) {
    StepLog log;
    for (const char* line : {"1", "2", "3", "4", "5"}) {
        log.Write(line, "");
    }
    ThinSteps(log, 3);
    EXPECT_EQ(TextsOf(log), (Lines{"1", "2", "3", "4", "5"}));
}

}  // namespace
}  // namespace numerello
