#include "core/failure.h"

namespace numerello {

std::string_view FailureName(FailureKind kind) {
    switch (kind) {
        case FailureKind::Overflow:
            return "overflow";
        case FailureKind::DivisionByZero:
            return "division by zero";
        case FailureKind::Format:
            return "format";
        case FailureKind::Unanswered:
            return "unanswered";
    }
    return "";
}

const char* Failure::what() const noexcept {
    return FailureName(kind).data();  // whole literals: they end in a zero
}

}  // namespace numerello
