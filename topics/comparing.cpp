#include "topics/comparing.h"

#include "core/number.h"
#include "core/text.h"

namespace numerello {

void CompareNumbers(Problem& problem, double A, double B) {
    const std::string a = NumberText(A);
    const std::string b = NumberText(B);
    StepLog& log = problem.log;
    log.Write(Text(a, " ? ", b), "");
    if (A > B) {
        log.Write(Text(a, " > ", b), Text(a, " is greater than ", b, " because ", a,
                                          " appears further right on a number line than ", b, "."));
    } else if (A == B) {
        log.Write(Text(a, " = ", b),
                  Text(a, " equals ", b,
                       " because they both appear at the same location on a number line."));
    } else {
        log.Write(Text(a, " < ", b), Text(a, " is less than ", b, " because ", a,
                                          " appears further left on a number line than ", b, "."));
    }
    problem.playback.NumberLine = NumberLineRequest{A, B};
}

}  // namespace numerello
