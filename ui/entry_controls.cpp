#include "ui/entry_controls.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "catalogue/box_keys.h"
#include "catalogue/entry_layouts.h"
#include "catalogue/guided_input.h"
#include "core/text.h"
#include "typeset/surface.h"
#include "ui/text.h"
#include "ui/typed_key.h"

namespace numerello {

namespace {

constexpr int kSmallestLetters = 9;

/// Whatever the desktop's colours.
QPalette PaperAndInk(QPalette palette) {
    constexpr QColor kPaler(0, 0, 0, 128);
    for (const auto ground : {QPalette::Base, QPalette::Button, QPalette::Window}) {
        palette.setColor(ground, Qt::white);
    }
    for (const auto ink : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        palette.setColor(ink, Qt::black);
    }
    palette.setColor(QPalette::PlaceholderText, kPaler);
    return palette;
}

}  // namespace

QFont EntryFont(int size) {
    QFont font(ToQString(kSheetFace));
    font.setPixelSize(size);
    return font;
}

QLabel* InkLabel(std::string_view text, QWidget* sheet) {
    auto* label = new QLabel(ToQString(text), sheet);
    label->setTextFormat(Qt::PlainText);
    QPalette ink = label->palette();
    ink.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(ink);
    return label;
}

EntryBox::EntryBox(int number, Problem& problem, QWidget* sheet)
    : QLineEdit(sheet), number(number), problem(problem) {
    setObjectName(QStringLiteral("Text%1").arg(number));
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAcceptDrops(false);
    setFont(EntryFont(kEntryTextSize));
    setPalette(PaperAndInk(palette()));
    // The face keeps room for descenders, which digits do not have.
    setTextMargins(3, 4, 3, 0);
    ShowText();
}

void EntryBox::ShowText() {
    const std::string& text = problem.boxes.Box(number);
    if (const QString shown = ToQString(text); shown != this->text()) {
        setText(shown);
    }
    end(false);
    setReadOnly(!problem.playback.TypingEnabled);
}

void EntryBox::Type(const QString& keys) {
    bool any = false;
    for (const std::string& key : Characters(keys.toStdString())) {
        any = BoxKey(problem, number, key) || any;
    }
    if (any) {
        emit Typed();
    }
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        Type(PastedText());
    } else if (event->key() == Qt::Key_Backspace) {
        Type(ToQString(kBackspace));
    } else if (IsForBox(*event)) {
        Type(event->text());
    } else {
        event->ignore();
    }
}

void EntryBox::mousePressEvent(QMouseEvent* /*event*/) {
    end(false);
}

void EntryBox::mouseMoveEvent(QMouseEvent* /*event*/) {}

void EntryBox::mouseReleaseEvent(QMouseEvent* /*event*/) {
    // The middle button would insert the selection of another window, past the box rule.
}

void EntryBox::mouseDoubleClickEvent(QMouseEvent* /*event*/) {}

void EntryBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    end(false);
}

void EntryBox::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore();
}

EntryList::EntryList(int number, Problem& problem, QWidget* sheet)
    : QComboBox(sheet), number(number), problem(problem) {
    setObjectName(QStringLiteral("Combo%1").arg(number));
    setPlaceholderText(QStringLiteral("Select a choice from the list."));
    setPalette(PaperAndInk(palette()));
    setFixedHeight(std::max(kBoxHeight, sizeHint().height()));
    connect(this, &QComboBox::activated, this, &EntryList::Choose);
}

void EntryList::ShowChoice() {
    setCurrentIndex(problem.boxes.List(number));
}

int EntryList::WidthForAll() const {
    constexpr int kFrameAndArrow = 44;
    return LongestRow() + kFrameAndArrow;
}

int EntryList::LongestRow() const {
    int longest = fontMetrics().horizontalAdvance(placeholderText());
    for (int row = 0; row < count(); ++row) {
        longest = std::max(longest, fontMetrics().horizontalAdvance(itemText(row)));
    }
    return longest;
}

void EntryList::FitRows(int width) {
    setFixedWidth(width);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = {0, 0, width, height()};
    const int room =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    QFont font = this->font();
    for (int size = fontInfo().pixelSize(); LongestRow() > room && size > kSmallestLetters;) {
        font.setPixelSize(--size);
        setFont(font);
    }
}

void EntryList::Choose(int row) {
    problem.boxes.List(number) = row;
    problem.topic.ClickedOnly = true;
    CheckBoxesReady(problem);
    emit Chosen();
}

void EntryList::showPopup() {
    if (Locked()) {
        return;
    }
    QComboBox::showPopup();
    if (currentIndex() < 0) {
        // The list stands on its first row unseen; what Enter would take has to be lit.
        view()->setCurrentIndex(model()->index(0, modelColumn()));
    }
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(event->key()) || Locked() || IsForTheForm(*event)) {
        event->ignore();
        return;
    }
    QComboBox::keyPressEvent(event);
}

/// Beside a typed line a list takes no characters: they belong to the line. Digits never choose.
bool EntryList::IsForTheForm(const QKeyEvent& event) const {
    const bool besideLine = IsTypedOnLine(problem.topic.ProblemType);
    return (besideLine && (IsForBox(event) || event.matches(QKeySequence::Paste))) ||
           (IsForBox(event) && IsDigit(event.text().toStdString()));
}

void EntryList::wheelEvent(QWheelEvent* event) {
    // A wheel over the sheet scrolls the desk; it must not change what was entered.
    event->ignore();
}

}  // namespace numerello
