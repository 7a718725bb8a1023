#pragma once

#include <QAbstractItemView>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <initializer_list>
#include <stdexcept>

namespace numerello {

// What a learner does to a window, and how a test finds what he does it to. Keys and clicks go in
// where those of the platform do, so that focus, modal windows and double clicks are as they are
// there. Whatever a test needs and does not find ends it as failed.

/// The control of that name, which may be the root itself. The name is the object name.
template <class T>
T& Find(QObject& root, const QString& name) {
    T* found = root.objectName() == name ? qobject_cast<T*>(&root) : nullptr;
    if (found == nullptr) {
        found = root.findChild<T*>(name);
    }
    if (found == nullptr) {
        throw std::runtime_error("there is no " + std::string(T::staticMetaObject.className()) +
                                 " named '" + name.toStdString() + "' in '" +
                                 root.objectName().toStdString() + "'");
    }
    return *found;
}

/// Shows the window and returns when keys go to it.
void ShowActive(QWidget& window);

/// Presses keys one after the other; each goes to what has the window's focus by then. Where the
/// window is gone, the rest is left out.
void PressKeys(QWidget& window, std::initializer_list<Qt::Key> keys);
void PressKey(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void TypeText(QWidget& window, const QString& text);

/// A button goes down and up. Places are those of the widget; none is its middle.
void Click(QWidget& widget);
void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void Press(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void Release(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
/// Both clicks reach the window of the widget, even if the first one closes it.
void DoubleClick(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);

/// The middle of a row's text, in the view's viewport, scrolled into view.
QPoint PlaceOf(QAbstractItemView& view, const QModelIndex& row);
void ClickRow(QAbstractItemView& view, const QModelIndex& row);
void DoubleClickRow(QAbstractItemView& view, const QModelIndex& row);

/// Clicks the button of that caption, mnemonics left out.
void PressButton(QWidget& dialog, const QString& caption);

/// Counts the presses and releases that reach it.
class MouseCounter : public QWidget {
  public:
    int events = 0;

  protected:
    void mousePressEvent(QMouseEvent* /*event*/) override { ++events; }
    void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++events; }
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++events; }
};

/// Waits for a modal window and acts on it, from inside of the loop that the window runs. To be
/// made before the window opens and to be kept until it has closed. A window that does not come
/// within two seconds, or that stands two seconds after the action, fails the test and is closed,
/// so that the test goes on. Several wait for one window each if they tell them apart.
class [[nodiscard]] WhenDialogOpens {
  public:
    using Wanted = std::function<bool(const QWidget&)>;
    using Action = std::function<void(QWidget&)>;

    WhenDialogOpens(const QString& name, Action action);
    WhenDialogOpens(Wanted wanted, Action action, const QString& description);
    /// Fails the test if the window has not come.
    ~WhenDialogOpens();

    WhenDialogOpens(const WhenDialogOpens&) = delete;
    WhenDialogOpens& operator=(const WhenDialogOpens&) = delete;

    bool HasOpened() const { return opened; }

  private:
    using Moment = std::chrono::steady_clock::time_point;

    void Look();
    void Act(QWidget& dialog);
    void Fail(const QString& what);

    Wanted wanted;
    Action action;
    QString description;
    QTimer timer;
    Moment since = std::chrono::steady_clock::now();
    QPointer<QWidget> dialog;
    bool opened = false;
    bool failed = false;
};

/// As long as it lives, no modal window may open; one that does fails the test and is closed.
class [[nodiscard]] NoDialogOpens {
  public:
    NoDialogOpens();

  private:
    QTimer timer;
};

}  // namespace numerello
