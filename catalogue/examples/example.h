#pragma once

#include <string>

#include "catalogue/examples/draws.h"
#include "core/problem.h"

namespace numerello {

/// A made-up problem: what a learner enters for it and, when it is made for a test, how the test
/// prints it.
struct Example {
    std::string keys;     ///< to be typed on the line; the filter drops what it does not take
    EntryBoxes boxes;     ///< boxes and lists; what the form does not show stays as it opens
    std::string printed;  ///< for a test: the problem in math text
    std::string suffix;   ///< for a test: what the family says behind the problem
};

/// Makes up a problem of a topic. `ForTest` the values that the test names stand in the boxes that
/// the form names so; otherwise the values a to f stand in Text1 to Text6. `ComplexEx` is 0 or 2.
/// A code without examples gives an empty one.
Example GenerateExample(const TopicChoice& topic, bool ForTest, int ComplexEx, ExampleDraws& draws);

}  // namespace numerello
