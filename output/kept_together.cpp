#include "output/kept_together.h"

#include "core/silent_learner.h"
#include "typeset/variants.h"

namespace numerello {

void KeepTogether(Surface& Printer,
                  const std::function<void(Surface& Printer, Learner& learner)>& print) {
    const auto goesOver = [&print](Surface probe) {
        SilentLearner silent;
        print(probe, silent);
        return probe.PageCount() > 1;
    };
    Surface fresh = Printer.Blank();
    fresh.CurrentX = 0;
    fresh.CurrentY = kPrintVariant.page->baseY - kPrintVariant.startDrop.At(fresh.FontSize());
    if (goesOver(Printer.Blank()) && !goesOver(fresh)) {
        Printer.NewPage();
        Printer.CurrentY = fresh.CurrentY;
    }
}

}  // namespace numerello
