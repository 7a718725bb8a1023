#include "topics/refusals.h"

namespace numerello {

void RefuseDivisionByZero(StepLog& log) {
    log.Write("Division by 0 is illegal.", "It is impossible to divide any number by 0.");
}

void RefuseFractionOverZero(StepLog& log) {
    log.Write("This fraction isn't valid because division by zero is illegal.",
              "It is mathematically impossible to divide any number by 0.");
}

void RefuseSides(StepLog& log) {
    log.Write("All sides must be greater than zero.",
              "It is impossible to have a side less than or equal to 0.");
}

void RefuseTriangleSides(StepLog& log) {
    log.Write("All sides of a triangle must be greater than zero.",
              "It is impossible for a triangle to have a side less than or equal to 0.");
}

void RefuseRadius(StepLog& log) {
    log.Write("The radius must be greater than zero.",
              "It is impossible to have a radius less than or equal to 0.");
}

}  // namespace numerello
