#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "typeset/surface.h"

namespace numerello {

enum class TypesetTarget { Paper, Explanation, Print, Preview };

/// A line to be drawn alone, on an empty page.
struct SampleRequest {
    TypesetTarget target = TypesetTarget::Paper;
    std::string text;
    double x = 0;  ///< where the pen stands before the line
    double y = 0;
    std::optional<double> size =
        std::nullopt;   ///< in points, that of all pages; unset: the target's own
    bool blue = false;  ///< counts for print and preview
};

struct SampleAnswer {
    struct PlacedMark {
        int page;  ///< 0 for the page that the line began on
        Mark mark;
    };
    struct Message {
        std::string title;
        std::string text;
    };

    std::vector<PlacedMark> marks;  ///< in drawing order
    double endX = 0;  ///< LineEndX and LineEndY on paper, (0, 0) when the line was given up;
    double endY = 0;  ///< elsewhere the pen after the line
    int pagesTurned = 0;
    std::vector<Message> messages;
};

/// "paper", "explain", "print" or "preview"; nothing for any other name.
std::optional<TypesetTarget> FindTypesetTarget(std::string_view name);

/// Draws the line as the worksheet (ten sheets at most), the explanation, the printer or the
/// preview would.
SampleAnswer TypesetSample(const SampleRequest& request, const TextMetrics& metrics);

}  // namespace numerello
