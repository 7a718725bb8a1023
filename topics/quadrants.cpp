#include "topics/quadrants.h"

#include <array>
#include <string>

#include "core/text.h"
#include "topics/number_list.h"

namespace numerello {

namespace {

struct Place {
    std::string_view line;
    std::string_view reason;
};

/// By the sign of x, then of y: negative, zero, positive. Only some lines end in a period: kept as
/// they are.
constexpr std::array<std::array<Place, 3>, 3> kPlaces{{
    {{{"Both coordinates are negative - Quadrant III", "Both coordinates are less than 0."},
      {"The point is located along the axis between Quadrant II and III",
       "The first coordinate is less than 0, and the second is 0."},
      {"The first coordinate is negative, the second is positive - Quadrant II.",
       "The first coordinate is less than 0, and the second is greater than 0."}}},
    {{{"The point is located along the axis between Quadrant III and IV",
       "The first coordinate is 0, and the second is less than 0."},
      {"The point is located at the origin.", "The origin of the graph is located at point (0,0)."},
      {"The point is located along the axis between Quadrant I and II",
       "The first coordinate is 0, and the second is greater than 0."}}},
    {{{"The first coordinate is positive, the second is negative - Quadrant IV.",
       "The first coordinate is greater than 0, and the second is less than 0."},
      {"The point is located along the axis between Quadrant I and IV",
       "The first coordinate is greater than 0, and the second is 0."},
      {"Both coordinates are positive - Quadrant I", "Both coordinates are greater than 0."}}},
}};

std::size_t SignRow(double value) {
    return value < 0 ? 0 : value == 0 ? 1 : 2;
}

}  // namespace

void PointQuadrant(Problem& problem, std::string_view XText, std::string_view YText) {
    StepLog& log = problem.log;
    log.Write(Text("(", XText, " , ", YText, ")"), "");
    log.Write(Text("Point (", XText, " , ", YText, ") is located:"),
              "The location of the point is detemined by the coordinates and whether each is "
              "positive or negative.");
    const Place& place = kPlaces[SignRow(EntryValue(XText))][SignRow(EntryValue(YText))];
    log.Write(std::string(place.line), std::string(place.reason));
}

}  // namespace numerello
