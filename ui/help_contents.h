#pragma once

#include <QTreeWidget>

#include "help/search.h"

namespace numerello {

/// The contents of the help as a tree. Titles that are too long for it are broken, not cut.
class HelpContents : public QTreeWidget {
    Q_OBJECT

  public:
    /// The index must outlive the tree.
    HelpContents(const HelpIndex& index, QWidget* parent);

    /// Lights a row of the index, without choosing it.
    void Light(int row);

  signals:
    /// This row of the index was clicked, or come to by keys.
    void Chosen(int row);

  private:
    void Fill();
    void Tell(QTreeWidgetItem* item);

    const HelpIndex& index;
    QList<QTreeWidgetItem*> items;  ///< by the rows of the index
};

}  // namespace numerello
