#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/learner.h"
#include "core/problem.h"
#include "engine/number_forms.h"
#include "engine/term_tables.h"
#include "engine/tokens.h"

namespace numerello {

/// Works an expression line by line: a pass composes a new text from the tables of the last one,
/// and RecordStep makes a line of the step log of it. Between two passes an expression exists only
/// as its tokens.
///
/// Groups are counted from 0 and lie at the deepest bracket level of the side in work; there is
/// always a group 0. A pass on a group that does not exist, or no longer, does nothing. A pass that
/// returns a bool tells whether it rewrote the line. It records what it rewrites, unless its
/// comment leaves that to the caller. All passes throw the Failures of the arithmetic in them, and
/// Failure(Format) past a bound of the tables or of the log.
class Engine {
  public:
    /// Whether the terms tell the exponent of their first letter. Untold, as ever: equations of a
    /// higher degree are worked like linear ones.
    enum class FirstExponents { Untold, Told };

    /// The problem must outlive the engine.
    explicit Engine(Problem& problem, FirstExponents firstExponents = FirstExponents::Untold)
        : problem(problem), firstExponents(firstExponents) {}

    /// Takes the typed problem over and records it as the first line. Throws
    /// Failure(DivisionByZero) for a literal division by 0.
    void Open();

    std::string ExprToText() const { return isRead ? lineText : TokensToText(tokens); }

    /// Replaces the expression, one character a token.
    void SetText(std::string_view text);

    enum class Record {
        Line,           ///< stores the new line, if it is one
        Refresh,        ///< stores nothing: the tables are read anew
        OnlyIfChanged,  ///< stores nothing while terms were neither merged nor lost
    };

    /// Reads the tables anew, and stores the line with StepReason when it differs from the last
    /// one. StepUnchanged then tells whether it did not.
    void RecordStep(Record record = Record::Line);

    const TermTables& Tables() const { return tables; }
    const Tokens& Line() const { return tokens; }

    // The order of rewriting: what runs the passes below until an expression is worked.

    /// For any expression without an "=": brackets from the deepest level outward.
    void SimplifyExpression();
    /// For sums with brackets and without products.
    void SimplifyLight();

    /// Whether combining moves factors with negative exponents to the other side of the line.
    enum class NegativeExponents { Remove, Keep };

    /// Repeats CombineTerms until nothing changes; sums of fractions go over a common denominator.
    void CombineUntilStable(std::size_t group,
                            NegativeExponents negatives = NegativeExponents::Remove);

    // Like terms.

    /// Puts the like terms of a group together, all in one line.
    void CombineTerms(std::size_t group, NegativeExponents negatives, Record record);
    /// The group's text with its terms in decreasing order of their first letter's exponent.
    std::string SortTerms(std::size_t group) const;

    // Products.

    /// Works all written products of a group, then what they leave.
    bool MultiplyPass(std::size_t group);
    /// Works the first written product of a group into one term.
    bool MultiplyPair(std::size_t group);
    /// Puts the factor behind a bracket into a bracket of its own: "(2+3)*4" becomes "(2+3)(4)".
    bool ReorderFactor(std::size_t group);
    /// Multiplies the factor in front into the bracket, powers first. The caller records the line.
    bool DistributeFront(std::size_t group);
    /// Multiplies a bracket term by term with the one that touches it. The caller records the line.
    bool MultiplyGroups(std::size_t first);

    // Brackets and bars.

    /// Takes one pair away where that is safe. The caller records the line; bars that go record
    /// theirs.
    bool RemoveParens();
    /// Takes bars around one term away.
    bool RemoveAbsolute(std::size_t group);

    // Powers and roots.

    /// Writes the powers of numbers in a group as products and works these.
    bool ExpandPowers(std::size_t group);
    /// Writes the powers of numbers in a group as products: "3^2" becomes "3*3".
    bool ExpandConstantTerms(std::size_t group);
    /// The same for the factor in front of a bracket.
    bool ExpandFrontPower(std::size_t group);
    /// Writes a bracket with a power as that many brackets. The caller records the line.
    bool ExpandPower(std::size_t group);
    /// Works a sum of roots and of products of roots.
    void RootSequence();
    /// Takes the squares out of all roots.
    void SimplifyRoots();

    // Sums and products of fractions.

    /// Works a group of fractions, its products and quotients first.
    void FractionArithmetic(std::size_t group);

    // Equations.

    /// Simplifies the left side, then the right one.
    void SimplifyBothSides();
    /// Works a simplified equation for a letter. True when a solution stands in the last line.
    bool SolveFor(const std::string& variable);
    /// Takes what has not the letter away from both sides, or swaps them.
    bool MoveTermsLeft(const std::string& variable);
    /// Takes what has the letter on the right away from both sides, or swaps them.
    bool MoveTermsRight(const std::string& variable);
    /// Takes the right side away from both sides.
    void SetEqualToZero();
    /// Shows every term over the divisor, which is not 0, and goes on with the quotients.
    void DivideBothSides(const std::string& variable, const Ratio& divisor);
    /// The terms of both sides for graphing: "+1/1y^+1=+2/1x+3/1" but for unit exponents.
    std::string SideToPlainText() const;

    // Factoring.

    /// Multiplies both sides by -1.
    void PrepareBothSides();
    /// Puts the current side into a bracket with a minus before it. The caller records the line.
    void NegateBothSides();
    /// Takes the greatest common factor out, or factors a quadratic by its roots. The caller
    /// records the line.
    bool FactorExpression(std::size_t group, bool withGcf);
    /// Records the quadratic's factors and its solutions.
    void FactorQuadratic(const std::string& variable);

    // Topics.

    /// Asks for the value of each letter and puts it in its place.
    void EvaluateBySubstitution(Learner& learner);
    /// The same between two simplifications.
    void EvaluateTopic(Learner& learner);

    /// Writes a number or a product as powers of its prime factors.
    void PowerNotationTopic();

  private:
    // Reading the line.
    bool HasGroup(std::size_t group) const { return group < tables.groups.size(); }
    const Group& GroupAt(std::size_t group) const;
    std::string_view TokenAt(std::size_t at) const;
    bool Holds(std::string_view token) const;
    bool HoldsRoot() const;
    std::string Written(const Term& term) const;
    std::string Shown(std::string_view text) const;
    std::string FactorText(const Term& factor) const;

    // Composing the next one.
    void ReplaceBetween(std::size_t begin, std::size_t end, std::string_view text);
    void ReplaceGroup(std::size_t group, std::string_view text);
    void Because(std::string_view reason, int level);

    void ReadLine();
    const std::string& ShownLine();
    void CleanReason();
    bool IsStored(const std::string& line) const;

    // order.cpp
    void OpenLetterProducts();
    bool RemoveAndRecord();
    void FirstWalk();
    void WorkGroup(std::size_t group);
    void SecondWalk();
    bool WorkAgain(std::size_t group);
    bool ExpandGroupPower(std::size_t group);
    bool WorkBrackets(std::size_t group);
    void CheckProducts(std::size_t group);
    bool IsSumOfFractions(std::size_t group) const;
    bool IsSettled(std::size_t group, NegativeExponents negatives) const;

    // combining.cpp
    void RemoveNegativeExponents(std::size_t group);
    std::string_view CombiningReason() const;
    bool KeepsFractions(const Group& group) const;
    void RecordSorted(std::size_t group, bool changed, Record record);

    // brackets.cpp
    bool RemoveBars();
    bool MayGo(const Group& pair) const;
    bool TakeParensAway(std::size_t group);
    bool TurnWhatFollows(const Group& group);

    // distribute.cpp
    void DropStar(std::size_t group);
    std::string ProductReason(const std::vector<Term>& one, const std::vector<Term>& other,
                              const std::string& products) const;
    bool ReduceFront(std::size_t group);

    // equations.cpp
    void UseSide(int side);
    std::vector<Term> TermsOf(int side) const;
    std::string SideText(int side) const;
    bool SolveForOther(const std::string& variable);
    void SwapSides();
    void AddToBothSides(const std::string& marks);
    /// Where "no solutions" is told: in a line of its own, or in the place of the last one.
    enum class TruthLine { Own, Last };
    bool StateTruth(const std::string& variable, TruthLine line);

    // quadratics.cpp
    float FirstExponent() const;
    bool SolveByFactoring(float exponent);
    bool FactorOutGcf(std::size_t group);
    bool FactorByRoots(std::size_t group);

    // roots.cpp
    bool SimplifyRoot(const Term& root);

    // fraction_arithmetic.cpp
    void MultiplyFractions(std::size_t group);
    bool MultiplyFractionPair(std::size_t group);
    void CombineCommonDenominators(std::size_t group);
    bool CombinePair(std::size_t group);
    void AddPair(std::size_t group, std::size_t one, std::size_t other);
    bool ReduceFractions(std::size_t group);
    void ReduceAndDropZeros(std::size_t group);
    void CombineOverLcd(std::size_t group);

    Problem& problem;
    FirstExponents firstExponents;
    Tokens tokens;
    TermTables tables;
    int currentSide = 0;        ///< whose tables are read: 0 left, 1 right of the "="
    bool termsChanged = false;  ///< the last combining did something
    bool isRead = false;        ///< the tables are those of the tokens
    int readSide = 0;           ///< and of this side
    std::string lineText;       ///< the tokens joined, once they are read
    std::optional<std::string> shownLine;
    /// What the last combining left as it was.
    struct Settled {
        std::string text;
        int side = 0;
        std::size_t group = 0;
        NegativeExponents negatives = NegativeExponents::Remove;
    };
    Settled settled;
    std::size_t lastTermCount = 0;
    bool orderNoteGiven = false;
};

}  // namespace numerello
