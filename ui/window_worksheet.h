#pragma once

#include "app/column_worksheet.h"
#include "ui/frm_explain.h"

namespace numerello {

/// The worksheet of the window: what it asks of other windows reaches them.
class WindowWorksheet : public ColumnWorksheet {
  public:
    using ColumnWorksheet::ColumnWorksheet;

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
