#pragma once

#include <functional>
#include <utility>

#include "app/column_worksheet.h"
#include "ui/frm_explain.h"

namespace numerello {

/// The worksheet of the window: what it asks of other windows reaches them.
class WindowWorksheet : public ColumnWorksheet {
  public:
    using ColumnWorksheet::ColumnWorksheet;

    /// Must outlive all that is asked of the worksheet.
    void Attach(FrmExplain& form) { explanation = &form; }

    /// What opens the graph's window and closes it.
    void AttachGraph(std::function<void()> open, std::function<void()> close) {
        openGraph = std::move(open);
        closeGraph = std::move(close);
    }

    void CloseGraph() override { closeGraph(); }

    void CloseExplanation() override {
        if (explanation != nullptr) {
            explanation->hide();
        }
    }

  protected:
    void OpenGraph() override { openGraph(); }

  private:
    FrmExplain* explanation = nullptr;
    std::function<void()> openGraph = [] {};
    std::function<void()> closeGraph = [] {};
};

}  // namespace numerello
