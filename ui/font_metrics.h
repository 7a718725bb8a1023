#pragma once

#include <QFont>
#include <QRawFont>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "typeset/text_metrics.h"

namespace numerello {

/// Makes VantrelFont known to the toolkit; needs the application object. False when the font cannot
/// be used. Calling it again does no harm.
bool LoadSheetFont();

/// The face that stands behind a font's name on paper, for a control.
QFont FontOfFace(std::string_view name);

/// Widths and heights from the faces themselves, unhinted and never rounded to pixels, so that a
/// line breaks at the same place at every scale. Units are sheet pixels: 12 points are 16 of them.
/// What was measured once is kept. For the thread of the window alone.
class FontMetrics : public TextMetrics {
  public:
    /// What is written on. On a sheet a line is 43/30 of the size high and a blank 67/204 of it
    /// wide whatever the face says, for sheets are ruled; in an explanation "Book Antiqua" is bold.
    enum class Medium { Sheet, Explanation, Print };

    explicit FontMetrics(Medium medium) : medium(medium) {}

    double Width(std::string_view text, const Font& font) const override;
    double LineHeight(const Font& font) const override;

    /// From the top of the text cell down to the baseline.
    double Ascent(const Font& font) const;

    /// The face that stands behind the font's name, at the font's size. Stays valid as long as the
    /// metrics.
    const QRawFont& Face(const Font& font) const;

    /// The face that a character is set in: that of the font, or where it has no such character, as
    /// in a name of another alphabet, the face of the distribution that knows most of them.
    const QRawFont& FaceOf(char32_t character, const Font& font) const;

    /// What a character's place lies to the right of the pen: in an explanation the equals sign,
    /// whose face has little room beside it, stands clear of the bars of fractions.
    double RoomBefore(char32_t character, const Font& font) const;

    /// Advance of one character with the room around it, in the font's size.
    double CharacterWidth(char32_t character, const Font& font) const;

  private:
    /// A face at a size so large that its advances are whole numbers of its own units.
    struct Master {
        QRawFont face;
        std::unordered_map<char32_t, double> emWidths;  ///< advances in parts of the letter height
    };

    Master& MasterOf(const std::string& name) const;
    std::string NameOfFace(char32_t character, const std::string& name) const;

    Medium medium;
    mutable std::map<std::string, Master, std::less<>> masters;
    mutable std::map<std::pair<std::string, double>, QRawFont> faces;
};

}  // namespace numerello
