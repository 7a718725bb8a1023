#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "ui/double_click.h"
#include "ui/frm_select.h"

/// The controls of the chooser's window, which tell the chooser of what they get. For that window
/// alone.
namespace numerello {

inline ChooserKey KeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return ChooserKey::Enter;
        case Qt::Key_Escape:
            return ChooserKey::Escape;
        case Qt::Key_Up:
            return ChooserKey::Up;
        case Qt::Key_Right:
            return ChooserKey::Right;
        case Qt::Key_Down:
            return ChooserKey::Down;
        default:
            return ChooserKey::Other;
    }
}

inline bool MovesThroughList(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
    }
}

inline bool IsMouse(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseMove ||
           event.type() == QEvent::MouseButtonDblClick ||
           event.type() == QEvent::MouseButtonRelease;
}

/// Hands events on to the chooser. One event may cause others; what comes of them is shown at the
/// end.
template <class Action>
void FrmSelect::Forward(Action action) {
    if (mirroring) {
        return;
    }
    {
        const QScopedValueRollback oneMore(openEvents, openEvents + 1);
        action();
    }
    if (openEvents == 0) {
        Mirror();
    }
}

/// A control that tells the chooser of its keys before it takes them itself.
template <class Control>
class FrmSelect::Forwarding : public Control {
  public:
    using KeyDown = void (Chooser::*)(ChooserKey);

    Forwarding(FrmSelect& form, ChooserControl name, KeyDown keyDown)
        : Control(&form), form(form), name(name), keyDown(keyDown) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        form.Forward([&] {
            const ChooserKey key = KeyOf(*event);
            (form.chooser.*keyDown)(key);
            if (key != ChooserKey::Enter && key != ChooserKey::Escape) {
                Control::keyPressEvent(event);
            }
        });
    }

    void focusInEvent(QFocusEvent* event) override {
        Control::focusInEvent(event);
        form.chooser.Control_GotFocus(name);
    }

    FrmSelect& form;

  private:
    ChooserControl name;
    KeyDown keyDown;
};

/// A view that shows what the chooser knows after each click, and takes the left button alone.
template <class View>
class FrmSelect::ForwardingView : public Forwarding<View> {
  public:
    using MouseUp = void (Chooser::*)();

    ForwardingView(FrmSelect& form, ChooserControl name, typename Forwarding<View>::KeyDown keyDown,
                   MouseUp mouseUp = nullptr)
        : Forwarding<View>(form, name, keyDown), mouseUp(mouseUp) {}

  protected:
    bool viewportEvent(QEvent* event) override {
        if (!IsMouse(*event)) {
            return View::viewportEvent(event);
        }
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (event->type() != QEvent::MouseMove && mouse.button() != Qt::LeftButton) {
            return true;
        }
        return Mouse(mouse, event);
    }

  private:
    /// While the button is down the row below the pointer is lit, whatever the chooser knows; when
    /// it comes up a row is clicked or the light goes back.
    bool Mouse(const QMouseEvent& mouse, QEvent* event) {
        FrmSelect& form = this->form;
        const QScopedValueRollback byMouse(form.mouseMoves, true);
        if (event->type() != QEvent::MouseButtonRelease) {
            return View::viewportEvent(event);
        }
        const bool wasOpen = form.chooser.IsOpen();
        bool taken = false;
        form.Forward([&] {
            taken = View::viewportEvent(event);
            if (mouseUp != nullptr) {
                (form.chooser.*mouseUp)();
            }
        });
        if (wasOpen && !form.chooser.IsOpen()) {
            SwallowSecondClick(mouse.globalPosition());
        }
        return taken;
    }

    MouseUp mouseUp;
};

/// The keys that move through a list do so in the index while the search box has the focus.
class FrmSelect::SearchBox : public Forwarding<QLineEdit> {
  public:
    using Forwarding<QLineEdit>::Forwarding;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (MovesThroughList(*event)) {
            QCoreApplication::sendEvent(form.indexList, event);
        } else {
            Forwarding<QLineEdit>::keyPressEvent(event);
        }
    }
};

}  // namespace numerello
