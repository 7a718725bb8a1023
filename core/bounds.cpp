#include "core/bounds.h"

#include "core/failure.h"

namespace numerello {

void CheckIndex(int index, int top) {
    if (index < 0 || index > top) {
        throw Failure(FailureKind::Format);
    }
}

}  // namespace numerello
