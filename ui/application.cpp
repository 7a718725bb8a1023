#include "ui/application.h"

#include <exception>
#include <utility>

#include "ui/window_learner.h"

namespace numerello {

namespace {

constexpr int kPlaceholderAlpha = 128;

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    FitPlaceholders();
}

bool Application::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) {
        FitPlaceholders();
    }
    return QApplication::event(event);
}

void Application::FitPlaceholders() {
    QPalette now = palette();
    const bool isNamed = now.isBrushSet(QPalette::Active, QPalette::PlaceholderText);
    if (isNamed && now.placeholderText().color() != placeholder) {
        return;
    }
    placeholder = now.color(QPalette::Active, QPalette::Text);
    placeholder.setAlpha(kPlaceholderAlpha);
    if (!isNamed || now.placeholderText().color() != placeholder) {
        now.setColor(QPalette::PlaceholderText, placeholder);
        setPalette(now);
    }
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        qWarning("an event was given up: %s", error.what());
        TellOnce();
        return true;
    }
}

/// By an event of its own: no box can stand in the midst of painting. What fails again and again
/// would else open box upon box.
void Application::TellOnce() {
    if (std::exchange(told, true)) {
        return;
    }
    const auto tell = [] {
        WindowLearner(QApplication::activeWindow())
            .MessageBox("",
                        "Something went wrong inside the program, and what you asked for may not "
                        "be done. Save your problem before you go on.");
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

}  // namespace numerello
