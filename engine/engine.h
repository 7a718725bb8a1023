#pragma once

#include <string>
#include <string_view>

#include "core/problem.h"
#include "engine/term_tables.h"
#include "engine/tokens.h"

namespace numerello {

/// Works an expression line by line: a pass composes a new text from the tables of the last one,
/// and RecordStep makes a line of the step log of it. Between two passes an expression exists only
/// as its tokens.
class Engine {
  public:
    /// The problem must outlive the engine.
    explicit Engine(Problem& problem) : problem(problem) {}

    /// Takes the typed problem over. Throws Failure(DivisionByZero) for a literal division by 0.
    void Open();

    std::string ExprToText() const { return TokensToText(tokens); }

    /// Replaces the expression, one character a token.
    void SetText(std::string_view text) { tokens = TextToTokens(text); }

    enum class Record {
        Line,           ///< stores the new line, if it is one
        Refresh,        ///< stores nothing: the tables are read anew
        OnlyIfChanged,  ///< stores nothing while terms were neither merged nor lost
    };

    /// Reads the tables anew, and stores the line with StepReason when it differs from the last
    /// one. StepUnchanged then tells whether it did not.
    void RecordStep(Record record = Record::Line);

    /// Works the first written product of a group into one term and records the line. False when
    /// the group holds none.
    bool MultiplyPair(std::size_t group);

    const TermTables& Tables() const { return tables; }
    const Tokens& Line() const { return tokens; }

    int Side = 0;               ///< whose tables are read: 0 left, 1 right of the "="
    bool TermsChanged = false;  ///< terms were merged since the last record

  private:
    std::string FactorText(const Term& factor) const;
    void CleanReason();
    bool IsStored(const std::string& line) const;

    Problem& problem;
    Tokens tokens;
    TermTables tables;
    std::size_t lastTermCount = 0;
};

}  // namespace numerello
