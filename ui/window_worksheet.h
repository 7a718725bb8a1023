#pragma once

#include "ui/frm_explain.h"
#include "worksheet/worksheet.h"

namespace numerello {

/// The worksheet of the window: what it asks of other windows reaches them.
class WindowWorksheet : public Worksheet {
  public:
    using Worksheet::Worksheet;

    /// Must outlive all that is asked of the worksheet.
    void Attach(FrmExplain& form) { explanation = &form; }

    void CloseExplanation() override {
        if (explanation != nullptr) {
            explanation->hide();
        }
    }

  private:
    FrmExplain* explanation = nullptr;
};

}  // namespace numerello
