#pragma once

#include <QPointer>
#include <QWidget>

#include "core/problem_files.h"

namespace numerello {

/// The desktop's dialog for files, modal over a window.
class WindowFileDialog : public FileDialog {
  public:
    explicit WindowFileDialog(QWidget* window) : window(window) {}

    std::optional<std::string> Show(const FileDialogSettings& settings) override;

  private:
    QPointer<QWidget> window;
};

}  // namespace numerello
