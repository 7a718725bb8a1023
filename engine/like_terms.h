#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bounds.h"
#include "core/problem.h"
#include "engine/number_forms.h"
#include "engine/term_tables.h"

/// The terms of one group, put together with those that are like them.
namespace numerello {

/// Terms of the same letters, or the constants.
struct LikeRow {
    Ratio sum{0, 1};      ///< signed
    std::string NumText;  ///< letters or root over the line
    std::string DenText;  ///< letters under it
    std::string written;  ///< as the line shows it, sign first; empty when the row cancelled
    bool merges = true;   ///< a term that has just been rewritten takes no other one
    bool alone = true;    ///< no other term was added
    bool isZero = false;  ///< its first term is 0
    const Term* first = nullptr;  ///< its first term
    std::string name;             ///< what a reason calls it, once another term is added
};

/// Takes the terms of a group one after the other and keeps the text that is to stand in their
/// place, and the reason of the last change.
class LikeTerms {
  public:
    /// With `keepFractions` the fractions of a sum of numbers wait for their common denominator.
    LikeTerms(const Problem& problem, bool keepFractions);

    /// A term with its text, sign first; it must outlive this. Throws Failure(Format) for a
    /// sixteenth unlike term.
    void Take(const Term& term, const std::string& written);

    /// A factor of a product that is left alone.
    void Keep(const std::string& written);

    /// Whether anything was merged, rewritten or dropped.
    bool IsChanged() const;

    /// Empty while nothing happened that has one.
    const std::string& Reason() const { return reason; }

    /// Terms with letters by first appearance, then the constants; "+0" when nothing is left.
    std::string GroupText() const;

  private:
    static constexpr int kMostLetterRows = 15;

    bool TakeZeroPower(const Term& term);
    void ReplaceNumbers(const Term& term);
    bool TakeNumberPower(const Term& term);
    bool TakeConversion(const Term& term, const std::string& written);
    bool Reduce(const Term& term);
    bool ToDecimal(const Term& term);
    bool ReadDecimal(const Term& term);
    void PutInPlace(const Term& term, const std::string& coefficient);
    void TakeConstant(const Term& term, const std::string& written);
    void TakeLetters(const Term& term, const std::string& written);
    void Merge(LikeRow& row, const Term& term);
    void AddRow(LikeRow row);
    bool IsDropped(const LikeRow& row) const;
    std::string Shown(std::string_view text) const;

    const AnswerSettings& settings;
    int code;
    bool keepFractions;
    std::vector<LikeRow> letters;
    std::vector<LikeRow> constants;
    int unlike = 0;  ///< letter parts that are not alike
    bool changed = false;
    std::string reason;
};

}  // namespace numerello
