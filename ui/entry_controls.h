#pragma once

#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QLineEdit>

#include "core/problem.h"

namespace numerello {

/// The sheets' face for boxes and their labels, its letters so many pixels high.
QFont EntryFont(int size);

/// A text on a sheet: ink, whatever the desktop's colours.
QLabel* InkLabel(std::string_view text, QWidget* sheet);

/// One of the boxes Text1 to Text6. Every key, also a pasted one, goes through the box rule; the
/// caret stays at the end, and the box widens with its text.
class EntryBox : public QLineEdit {
    Q_OBJECT

  public:
    EntryBox(int number, Problem& problem, QWidget* sheet);

    /// Takes over the text that the problem holds, and whether it still takes keys. Where the box
    /// stands and how wide it is, is its form's business.
    void ShowText();

  signals:
    void Typed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void Type(const QString& keys);

    int number;
    Problem& problem;
};

/// One of the lists Combo1 to Combo3. Once the problem is solved it shows its choice and takes
/// none.
class EntryList : public QComboBox {
    Q_OBJECT

  public:
    EntryList(int number, Problem& problem, QWidget* sheet);

    void ShowChoice();

    /// As wide as its longest row.
    int WidthForAll() const;

    /// Takes on this width; rows that are too long for it are set smaller, not cut.
    void FitRows(int width);

  signals:
    void Chosen();

  protected:
    void showPopup() override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    int LongestRow() const;  ///< in pixels, that without a choice included
    void Choose(int row);
    bool IsForTheForm(const QKeyEvent& event) const;
    bool Locked() const { return !problem.playback.TypingEnabled; }

    int number;
    Problem& problem;
};

}  // namespace numerello
