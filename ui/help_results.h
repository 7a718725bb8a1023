#pragma once

#include <QWidget>
#include <vector>

#include "help/search.h"

class QLabel;
class QListWidget;

namespace numerello {

/// The pages that a search of the help found, and how many they are.
class HelpResults : public QWidget {
    Q_OBJECT

  public:
    /// The index must outlive the list.
    HelpResults(const HelpIndex& index, QWidget* parent);

    /// Shows these rows of the index, none of them chosen yet.
    void Show(std::vector<int> found);

    /// Chooses the row that is lit, or the first one.
    void Choose();

    /// Chooses the row so many below the one that is lit, as far as there are any.
    void Move(int down);

    bool IsEmpty() const { return rows.empty(); }

    void SetIconSize(QSize size);

  signals:
    /// This row of the index was chosen.
    void Chosen(int row);

  private:
    void Open(int place);

    const HelpIndex& index;
    QLabel* found;
    QListWidget* list;
    std::vector<int> rows;  ///< of the index, by their places in the list
};

}  // namespace numerello
