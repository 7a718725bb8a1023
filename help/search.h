#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "help/contents.h"

namespace numerello {

/// The contents as the help window has them, ready to be searched.
class HelpIndex {
  public:
    /// From the text that ContentsFile made. Throws HelpError for any other.
    explicit HelpIndex(std::string_view contentsFile);

    const std::vector<ContentsRow>& Rows() const { return rows; }

    /// The index of a page's row; nothing when there is no such page.
    std::optional<int> RowOf(std::string_view page) const;

    /// The page `steps` pages before (negative) or behind another in the contents; empty when
    /// there is none.
    std::string PageBeside(std::string_view page, int steps) const;

    /// The rows of the pages that have every word of the query, or a word that begins with it. A
    /// title that begins with the query comes first, then titles that have the words, then texts.
    /// Case does not count. None for an empty query.
    std::vector<int> Search(std::string_view query) const;

  private:
    struct Words {
        std::string title;  ///< in small letters, a blank before each word, as `all`
        std::string all;
    };

    std::vector<ContentsRow> rows;
    std::vector<Words> words;
};

}  // namespace numerello
