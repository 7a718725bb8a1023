#include <algorithm>

#include "core/text.h"
#include "core/topic_codes.h"
#include "engine/display.h"
#include "engine/engine.h"
#include "engine/normalise.h"
#include "engine/reasons.h"

namespace numerello {

namespace {

/// A sign behind "/" and an exponent of 1 go; numbers beside them are put together then.
bool LeavesNumbersToJoin(const Tokens& tokens) {
    return std::adjacent_find(tokens.begin(), tokens.end(),
                              [](const std::string& one, const std::string& next) {
                                  return (IsMark(one, '/') && IsSign(next)) ||
                                         (IsMark(one, '^') && IsMark(next, '1'));
                              }) != tokens.end();
}

auto Parens(const std::string& line) {
    return std::count(line.begin(), line.end(), '(');
}

/// " 1x" becomes " x", and so on.
void DropUnit(std::string& reason, std::string_view before, std::string_view letter) {
    if (reason.find(Text("1", letter)) == std::string::npos) {
        return;
    }
    reason = Replace(reason, Text(before, "1", letter), Text(before, letter));
    reason = Replace(reason, Text(before, "-1", letter), Text(before, "-", letter));
}

std::size_t TermCount(const TermTables& tables) {
    return tables.groups.empty() ? 0 : tables.groups.front().terms.size();
}

}  // namespace

void Engine::Open() {
    SetText(TokensToText(CellsToTokens(problem.typed)));
    RecordStep();
}

void Engine::SetText(std::string_view text) {
    if (isRead && text == lineText) {
        return;
    }
    tokens = TextToTokens(text);
    isRead = false;
}

/// Puts the tokens in order and reads the tables; what has not changed since is not read again.
void Engine::ReadLine() {
    if (isRead && readSide == currentSide) {
        return;
    }
    if (!isRead) {
        const int code = problem.topic.ProblemType;
        tokens = MergeNumberTokens(tokens, code);
        const bool joins = LeavesNumbersToJoin(tokens);
        tokens = NormaliseTokens(tokens);
        if (joins) {
            tokens = MergeNumberTokens(TextToTokens(TokensToText(tokens)), code);
        }
        lineText = TokensToText(tokens);
        shownLine.reset();
    }
    tables = BreakIntoTerms(tokens, currentSide);
    if (firstExponents == FirstExponents::Told) {
        TellFirstExponents(tables);
    }
    isRead = true;
    readSide = currentSide;
}

/// The line that was read, as the learner sees it. Set out when it is first asked for: most lines
/// are passed over.
const std::string& Engine::ShownLine() {
    if (!shownLine) {
        shownLine = DisplayText(tokens, problem.topic.ProblemType);
    }
    return *shownLine;
}

void Engine::RecordStep(Record record) {
    ReadLine();
    StepLog& log = problem.log;
    const bool sameTerms = TermCount(tables) == lastTermCount && !termsChanged;
    if ((record == Record::OnlyIfChanged && sameTerms) || ShownLine() == log.LastStepLine) {
        log.StepUnchanged = true;
    } else if (record != Record::Refresh && IsStored(ShownLine())) {
        CleanReason();
        log.StepLevels[log.StepCount] = log.StepLevel;
        log.LastStepLine = ShownLine();
        log.StepUnchanged = false;
        log.Write(ShownLine(), log.StepReason);
    }
    lastTermCount = TermCount(tables);
}

/// Letters of the reason lose a coefficient of 1.
void Engine::CleanReason() {
    std::string& reason = problem.log.StepReason;
    const TypedProblem& typed = problem.typed;
    const std::string& first = typed.VarNames[1];
    for (int slot = 1; slot <= 2 && slot < typed.VarCount; ++slot) {
        const std::string& letter = typed.VarNames[slot];
        if (reason.find(letter) == std::string::npos) {
            continue;
        }
        DropUnit(reason, " ", letter);
        DropUnit(reason, "(", letter);
        // Behind "#" the second letter keeps its 1: kept as it is.
        DropUnit(reason, "#", first);
    }
}

bool Engine::IsStored(const std::string& line) const {
    const StepLog& log = problem.log;
    if (problem.topic.ProblemType == kEvaluatingPolynomials &&
        WithoutEmphasis(log.LastStepLine) == line) {
        return false;
    }
    if (log.StepCount == 1) {
        return true;
    }
    if (log.StepReason == kReorderReason) {
        return false;
    }
    return log.StepReason != kRemoveParensReason || Parens(line) < Parens(log.LastStepLine);
}

}  // namespace numerello
