#include "ui/entry_form.h"

#include <QPainter>
#include <algorithm>

#include "topics/conversions.h"
#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr int kUnitsGap = 16;

QRect ToQRect(const EntryRect& place) {
    return {place.x, place.y, place.width, place.height};
}

/// Picture3: the drawing that the boxes stand on.
class EntryPicture : public QWidget {
  public:
    EntryPicture(const EntryLayout& layout, QWidget* sheet) : QWidget(sheet), layout(layout) {
        setObjectName(QStringLiteral("Picture3"));
        setGeometry(ToQRect(kPictureBox));
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        for (const std::string_view key : {layout.picture, layout.overlay}) {
            if (!key.empty()) {
                painter.drawPixmap(
                    layout.pictureX - kPictureBox.x, 0,
                    Artwork(ToQString(key), {kDrawingWidth, height()}, devicePixelRatioF()));
            }
        }
    }

  private:
    const EntryLayout& layout;
};

Qt::Alignment AlignmentOf(Anchor anchor) {
    switch (anchor) {
        case Anchor::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case Anchor::Middle:
            return Qt::AlignCenter;
        case Anchor::Left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

EntryForm::EntryForm(Problem& problem, QWidget* sheet)
    : QObject(sheet),
      problem(problem),
      sheet(sheet),
      layout(FindEntryLayout(problem.topic.ProblemType)) {
    if (layout == nullptr) {
        return;
    }
    MakePicture();
    for (const EntryLabel& label : layout->labels) {
        labels.push_back(AddLabel(label.text, label.size, Qt::AlignCenter));
    }
    for (std::size_t i = 0; i < layout->rules.size(); ++i) {
        auto* rule = new QWidget(sheet);
        rule->setAutoFillBackground(true);
        rule->setPalette(QPalette(Qt::black));
        rules.push_back(rule);
    }
    for (const EntryBoxLayout& box : layout->boxes) {
        MakeBox(box);
    }
    MakeLists();
    SetTabOrder();
    Show();
}

void EntryForm::MakePicture() {
    if (!layout->picture.empty()) {
        new EntryPicture(*layout, sheet);
    }
}

QRect EntryForm::PicturePlace() const {
    return layout == nullptr || layout->picture.empty() ? QRect() : ToQRect(kPictureBox);
}

void EntryForm::MakeBox(const EntryBoxLayout& box) {
    auto* made = new EntryBox(box.number, problem, sheet);
    made->setAccessibleName(ToQString(box.name));
    made->setAlignment(AlignmentOf(box.anchor));
    connect(made, &EntryBox::Typed, this, [this, made] { emit Changed(made); });
    boxes.push_back(made);

    QLabel* label = nullptr;
    if (box.side != NameSide::Hidden) {
        const bool before = box.side == NameSide::Left;
        label = AddLabel(box.name, kEntryTextSize, before ? Qt::AlignRight : Qt::AlignLeft);
        label->setBuddy(made);
    }
    boxLabels.push_back(label);
}

void EntryForm::MakeLists() {
    switch (layout->lists) {
        case EntryLists::Lengths:
            return MakeUnitLists(kLengthUnits);
        case EntryLists::Masses:
            return MakeUnitLists(kMassUnits);
        case EntryLists::Roundings:
            return MakeRoundingList();
        case EntryLists::None:
            return;
    }
}

/// One row: the unit of the value, and the one that is asked for.
void EntryForm::MakeUnitLists(int UnitKind) {
    EntryList* from = AddList(1, QStringLiteral("From"));
    EntryList* into = AddList(2, QStringLiteral("To"));
    for (int row = 0; row < kMetricItems; ++row) {
        from->addItem(ToQString(MetricItem(row, UnitKind)));
        into->addItem(ToQString(MetricItem(row, UnitKind)));
    }
    QLabel* to = AddLabel("to", kEntryTextSize, Qt::AlignCenter);
    to->setBuddy(into);
    to->setFixedSize(to->sizeHint().width(), from->height());
    const int room = (kUnitRow.width - to->width()) / 2 - kUnitsGap;
    const int width = std::min(from->WidthForAll(), room);
    from->FitRows(width);
    into->FitRows(width);
    from->move(kUnitRow.x, kUnitRow.y);
    to->move(from->geometry().right() + kUnitsGap, kUnitRow.y);
    into->move(to->geometry().right() + kUnitsGap, kUnitRow.y);
}

void EntryForm::MakeRoundingList() {
    EntryList* list = AddList(3, QStringLiteral("Rounding"));
    for (const std::string_view row : RoundingRows()) {
        list->addItem(ToQString(row));
    }
    list->FitRows(kRoundingList.width);
    list->move(kRoundingList.x, kRoundingList.y);
}

EntryList* EntryForm::AddList(int number, const QString& name) {
    auto* list = new EntryList(number, problem, sheet);
    list->setAccessibleName(name);
    // Some desktops tell the choice in place of the name.
    list->setAccessibleDescription(name);
    connect(list, &EntryList::Chosen, this, [this, list] { emit Changed(list); });
    lists.push_back(list);
    return list;
}

QLabel* EntryForm::AddLabel(std::string_view text, int size, Qt::Alignment alignment) {
    QLabel* label = InkLabel(text, sheet);
    label->setFont(EntryFont(size));
    label->setAlignment(alignment | Qt::AlignVCenter);
    // In line with the text of the boxes.
    label->setContentsMargins(0, 4, 0, 0);
    return label;
}

QWidget* EntryForm::LastControl() const {
    return lists.empty() ? static_cast<QWidget*>(boxes.back()) : lists.back();
}

void EntryForm::SetTabOrder() {
    QWidget* last = nullptr;
    const auto follow = [&last](QWidget* next) {
        if (last != nullptr) {
            QWidget::setTabOrder(last, next);
        }
        last = next;
    };
    std::for_each(boxes.begin(), boxes.end(), follow);
    std::for_each(lists.begin(), lists.end(), follow);
}

void EntryForm::Show() {
    if (layout == nullptr) {
        return;
    }
    const PlacedEntry placed = PlaceEntry(*layout, problem.boxes);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->ShowText();
        boxes[i]->setGeometry(ToQRect(placed.boxes[i]));
        if (boxLabels[i] != nullptr) {
            boxLabels[i]->setGeometry(ToQRect(placed.boxLabels[i]));
        }
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i]->setGeometry(ToQRect(placed.labels[i]));
    }
    for (std::size_t i = 0; i < rules.size(); ++i) {
        rules[i]->setGeometry(ToQRect(placed.rules[i]));
    }
    for (EntryList* list : lists) {
        list->ShowChoice();
    }
}

}  // namespace numerello
