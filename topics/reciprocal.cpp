#include "topics/reciprocal.h"

#include "core/text.h"

namespace numerello {

void FindReciprocal(Problem& problem, std::string_view ValueText) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    log.Write(Text("#", v, "#"), "");
    log.Write(
        "To find the reciprocal, interchange the numerator and the denominator.",
        "The numerator is the number on top in the fraction, the denominator is the number on "
        "the bottom.");

    const std::size_t bar = v.find('/');
    if (bar == std::string_view::npos) {
        log.Write(Text("The reciprocal of ", v, ", or #", v, "/1#, is:"),
                  "The denominator of a whole number is understood as 1.");
        log.Write(Text("#1/", v, "#"), "Flip the numerator and the denominator.");
        return;
    }
    const std::string_view numerator = v.substr(0, bar);
    const std::string_view denominator = v.substr(bar + 1);
    if (numerator == "1") {
        log.Write(Text("The reciprocal of #", v, "# is:"),
                  "To find the reciprocal, flip the numerator and the denominator.");
        log.Write(Text("#", denominator, "/", numerator, "#, or ", denominator),
                  "Any number divided by 1 equals that number.");
        return;
    }
    log.Write(Text("The reciprocal of #", v, "# is:"),
              Text("To find the reciprocal of #", v, "#, flip the numerator and the denominator."));
    log.Write(Text("#", denominator, "/", numerator, "#"),
              "Flip the numerator and the denominator.");
}

}  // namespace numerello
