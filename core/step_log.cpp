#include "core/step_log.h"

#include <utility>

namespace numerello {

void StepLog::Write(std::string text, std::string note) {
    StepText[StepCount] = std::move(text);
    StepNote[StepCount] = std::move(note);
    ++StepCount;
}

void ThinSteps(StepLog& log, int detailLevel) {
    if (log.StepCount <= 2 || log.StepLevels.Get(2) >= StepLog::kUnsetLevel) {
        return;
    }
    const int last = log.StepCount - 1;
    int next = 2;
    for (int i = 2; i <= last; ++i) {
        std::string text = std::exchange(log.StepText[i], "");
        std::string note = std::exchange(log.StepNote[i], "");
        if (i == last || i % detailLevel == 0) {
            log.StepText[next] = std::move(text);
            log.StepNote[next] = std::move(note);
            ++next;
        }
    }
    log.StepCount = next;
}

}  // namespace numerello
