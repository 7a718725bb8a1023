#pragma once

#include <QApplication>

namespace numerello {

/// The toolkit's application with a last resort: what the handling of an event throws ends that
/// event, and neither the program nor the learner's work. The first time the learner is told.
class Application : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void TellOnce();

    bool told = false;
};

}  // namespace numerello
