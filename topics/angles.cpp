#include "topics/angles.h"

#include "core/number.h"
#include "core/text.h"

namespace numerello {

void ClassifyAngle(Problem& problem, std::string_view DegreesText) {
    const std::string_view d = DegreesText;
    StepLog& log = problem.log;
    log.Write(std::string(d), "");
    const double degrees = ToNumber(d);
    if (degrees <= 0 || degrees > 180) {
        log.Write("An angle must have a measurement greater than 0^o^ and no more than 180^o^.",
                  "Enter an angle ranging from 1^o^ to 180^o^.");
    } else if (degrees == 180) {
        log.Write("180^o^ (degrees) forms a STRAIGHT angle.", "A straight angle = 180^o^");
    } else if (degrees == 90) {
        log.Write("90^o^ (degrees) forms a RIGHT angle.", "A right angle = 90^o^");
    } else if (degrees > 90) {
        log.Write(Text(d,
                       "^o^ (degrees) forms an OBTUSE angle because it is between 90^o^ and "
                       "180^o^."),
                  "90^o^ < obtuse < 180^o^");
    } else {
        log.Write(Text(d,
                       "^o^ (degrees) forms an ACUTE angle because it is between 0^o^ and "
                       "90^o^."),
                  "0^o^ < acute < 90^o^");
    }
}

}  // namespace numerello
