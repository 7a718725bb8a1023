#include "ui/help_results.h"

#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {

HelpResults::HelpResults(const HelpIndex& index, QWidget* parent)
    : QWidget(parent), index(index), found(new QLabel(this)), list(new QListWidget(this)) {
    found->setObjectName(QStringLiteral("found"));
    list->setObjectName(QStringLiteral("results"));
    list->setAccessibleName(QStringLiteral("Pages found"));
    list->setWordWrap(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(list, &QListWidget::currentRowChanged, this, &HelpResults::Open);
    connect(list, &QListWidget::itemClicked, this, [this] { Open(list->currentRow()); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(found);
    column->addWidget(list, 1);
}

void HelpResults::Show(std::vector<int> found) {
    const QSignalBlocker noChoiceYet(list);
    list->clear();
    rows = std::move(found);
    const QIcon page = ArtworkIcon(QStringLiteral("book2"));
    for (const int row : rows) {
        const ContentsRow& each = index.Rows()[static_cast<std::size_t>(row)];
        list->addItem(new QListWidgetItem(page, ToQString(each.title)));
    }
    this->found->setText(rows.empty()       ? QStringLiteral("No page has these words.")
                         : rows.size() == 1 ? QStringLiteral("1 page")
                                            : QStringLiteral("%1 pages").arg(rows.size()));
}

void HelpResults::Choose() {
    Open(std::max(0, list->currentRow()));
}

void HelpResults::Move(int down) {
    Open(std::clamp(list->currentRow() + down, 0, std::max(0, list->count() - 1)));
}

void HelpResults::Open(int place) {
    if (place >= 0 && place < list->count()) {
        const QSignalBlocker openedAlready(list);
        list->setCurrentRow(place);
        emit Chosen(rows[static_cast<std::size_t>(place)]);
    }
}

void HelpResults::SetIconSize(QSize size) {
    list->setIconSize(size);
}

}  // namespace numerello
