#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

#include "catalogue/entry_layouts.h"
#include "ui/entry_controls.h"

namespace numerello {

/// What stands on the first sheet for entering a problem in boxes and lists: the picture, the boxes
/// with their labels, the lists. A topic that has none of them gets none.
class EntryForm : public QObject {
    Q_OBJECT

  public:
    /// The problem, its topic already chosen, must outlive the form; the controls belong to the
    /// sheet.
    EntryForm(Problem& problem, QWidget* sheet);

    /// Takes over texts and choices that the problem holds, and whether it still takes keys.
    void Show();

    /// The first box; null where the sheet itself takes the keys.
    QWidget* FirstBox() const { return boxes.empty() ? nullptr : boxes.front(); }

    /// The last one in the order of the Tab key, where there is a first box.
    QWidget* LastControl() const;

    /// Where the picture is on the sheet; empty where there is none.
    QRect PicturePlace() const;

  signals:
    /// The learner changed what `field` holds.
    void Changed(QWidget* field);

  private:
    void MakePicture();
    void MakeBox(const EntryBoxLayout& box);
    void MakeLists();
    void MakeUnitLists(int UnitKind);
    void MakeRoundingList();
    EntryList* AddList(int number, const QString& name);
    QLabel* AddLabel(std::string_view text, int size, Qt::Alignment alignment);
    void SetTabOrder();

    Problem& problem;
    QWidget* sheet;
    const EntryLayout* layout;
    std::vector<EntryBox*> boxes;
    std::vector<QLabel*> boxLabels;  ///< null where the name of the box is not seen
    std::vector<QLabel*> labels;
    std::vector<QWidget*> rules;
    std::vector<EntryList*> lists;
};

}  // namespace numerello
