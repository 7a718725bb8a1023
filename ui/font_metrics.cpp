#include "ui/font_metrics.h"

#include <QFont>
#include <QFontDatabase>
#include <QString>
#include <algorithm>
#include <array>

#include "typeset/surface.h"

namespace numerello {

namespace {

constexpr const char* kSheetFontFile = ":/font/VantrelFont-Regular.otf";

/// Has the letters that the other faces lack.
constexpr std::string_view kOtherAlphabets = "Liberation Serif";

constexpr double kPixelsPerPoint = 4.0 / 3;

/// Which face of the distribution stands behind a name. The quadrants of the graph are the only
/// text in "Courier", and they are bold.
struct Family {
    std::string_view name;
    const char* family;
    bool bold;
    bool boldInExplanation;
};
constexpr std::array kFamilies{
    Family{kSheetFace, "VantrelFont", false, false},
    Family{kExplanationFace, "TeX Gyre Pagella", false, true},
    Family{"Arial", "Liberation Sans", false, false},
    Family{"MS Sans Serif", "Liberation Sans", false, false},
    Family{"Courier", "Liberation Mono", true, true},
};

QFont QtFont(std::string_view name, FontMetrics::Medium medium) {
    const auto known = std::find_if(kFamilies.begin(), kFamilies.end(),
                                    [name](const Family& row) { return row.name == name; });
    QFont font;
    font.setHintingPreference(QFont::PreferNoHinting);
    if (known == kFamilies.end()) {
        font.setFamily(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
        return font;
    }
    font.setFamily(QString::fromLatin1(known->family));
    font.setBold(medium == FontMetrics::Medium::Explanation ? known->boldInExplanation
                                                            : known->bold);
    return font;
}

}  // namespace

bool LoadSheetFont() {
    static const int id = QFontDatabase::addApplicationFont(QString::fromLatin1(kSheetFontFile));
    return id >= 0;
}

QFont FontOfFace(std::string_view name) {
    return QtFont(name, FontMetrics::Medium::Print);
}

FontMetrics::Master& FontMetrics::MasterOf(const std::string& name) const {
    const auto [place, isNew] = masters.try_emplace(name);
    if (isNew) {
        QRawFont face = QRawFont::fromFont(QtFont(name, medium));
        face.setPixelSize(face.unitsPerEm());
        place->second.face = face;
    }
    return place->second;
}

std::string FontMetrics::NameOfFace(char32_t character, const std::string& name) const {
    return MasterOf(name).face.supportsCharacter(character) ? name : std::string(kOtherAlphabets);
}

const QRawFont& FontMetrics::FaceOf(char32_t character, const Font& font) const {
    return Face({NameOfFace(character, font.name), font.size});
}

double FontMetrics::RoomBefore(char32_t character, const Font& font) const {
    constexpr double kRoom = 0.1;  // of the letter height
    const bool needsRoom =
        medium == Medium::Explanation && character == U'=' && font.name == kExplanationFace;
    return needsRoom ? kRoom * font.size * kPixelsPerPoint : 0;
}

double FontMetrics::CharacterWidth(char32_t character, const Font& font) const {
    if (character == U' ' && medium == Medium::Sheet) {
        return kBlankPerPoint * font.size;
    }
    const auto [place, isNew] = MasterOf(font.name).emWidths.try_emplace(character);
    if (isNew) {
        const QRawFont& face = MasterOf(NameOfFace(character, font.name)).face;
        const QList<quint32> glyphs = face.glyphIndexesForString(QString::fromUcs4(&character, 1));
        const QList<QPointF> advances = face.advancesForGlyphIndexes(
            glyphs, QRawFont::SeparateAdvances | QRawFont::UseDesignMetrics);
        place->second = advances.isEmpty() ? 0 : advances.front().x() / face.pixelSize();
    }
    return place->second * font.size * kPixelsPerPoint + 2 * RoomBefore(character, font);
}

double FontMetrics::Width(std::string_view text, const Font& font) const {
    double width = 0;
    for (const char32_t character :
         QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdU32String()) {
        width += CharacterWidth(character, font);
    }
    return width;
}

double FontMetrics::LineHeight(const Font& font) const {
    if (medium == Medium::Sheet) {
        return kLinePerPoint * font.size;
    }
    const QRawFont& face = MasterOf(font.name).face;
    return (face.ascent() + face.descent() + face.leading()) / face.pixelSize() * font.size *
           kPixelsPerPoint;
}

double FontMetrics::Ascent(const Font& font) const {
    const QRawFont& face = MasterOf(font.name).face;
    return face.ascent() / face.pixelSize() * font.size * kPixelsPerPoint;
}

const QRawFont& FontMetrics::Face(const Font& font) const {
    const auto [place, isNew] = faces.try_emplace({font.name, font.size});
    if (isNew) {
        place->second = MasterOf(font.name).face;
        place->second.setPixelSize(font.size * kPixelsPerPoint);
    }
    return place->second;
}

}  // namespace numerello
