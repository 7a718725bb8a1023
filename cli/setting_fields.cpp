#include "cli/setting_fields.h"

namespace numerello {

void ApplySettings(Fields& fields, AnswerSettings& settings) {
    const Json* object = fields.Object("settings");
    if (object == nullptr) {
        return;
    }
    Fields given(*object);
    const auto whole = [&given](std::string_view name, Range<long> range, int otherwise) {
        return static_cast<int>(given.Integer(name, range, otherwise));
    };
    settings.RoundDigits = whole("RoundDigits", {1, 5}, settings.RoundDigits);
    settings.UseFractions = given.Bool("UseFractions", settings.UseFractions);
    settings.DetailLevel = whole("DetailLevel", {1, 3}, settings.DetailLevel);
    settings.ExpDetail = whole("ExpDetail", {1, 3}, settings.ExpDetail);
    settings.ComplexEx = whole("ComplexEx", {0, 2}, settings.ComplexEx);
    if (settings.ComplexEx == 1) {
        throw BadRequest("\"ComplexEx\" must be 0 or 2");
    }
    settings.mnuShowStep = given.Bool("mnuShowStep", settings.mnuShowStep);
    given.RejectOthers();
}

}  // namespace numerello
