#pragma once

#include <QApplication>
#include <QColor>

namespace numerello {

/// The toolkit's application with a last resort: what the handling of an event throws ends that
/// event, and neither the program nor the learner's work. The first time the learner is told.
/// Placeholders are a paler text on every desktop: a dark one that names no color for them would
/// get black.
class Application : public QApplication {
  public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;

  private:
    void TellOnce();
    void FitPlaceholders();

    bool told = false;
    QColor placeholder;  ///< that was given to a palette without one
};

}  // namespace numerello
