#pragma once

#include <QWidget>
#include <string_view>

#include "help/search.h"

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace numerello {

class HelpView;

/// The help: contents, search and pages, a window of its own that works without a network. It
/// stays usable beside the frame, and closing it only hides it.
class FrmHelp : public QWidget {
    Q_OBJECT

  public:
    explicit FrmHelp(QWidget* parent = nullptr);

    /// Brings the window to the front with the page of the topic of that caption, or with the first
    /// page when there is none.
    void ShowTopic(std::string_view caption);

    /// As above by the name of a page, such as "keyboard"; empty for the page last read.
    void ShowPage(const QString& name = {});

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakeSide();
    QToolBar* MakeToolbar();
    QAction* AddCommand(QToolBar* bar, const char* name, const QString& caption,
                        const QString& picture, const QList<QKeySequence>& shortcuts);
    void MakeCommands(QToolBar* bar);
    void FillContents();
    void SizeIcons();
    void Raise();

    void Search();
    void OpenResult(int row);
    void OpenContents(QTreeWidgetItem* item);
    void MirrorPage();
    void GoBeside(int steps);
    void StepZoom(int steps);

    HelpIndex index;
    HelpView* view;
    QLineEdit* search = nullptr;
    QStackedWidget* side = nullptr;
    QTreeWidget* contents = nullptr;
    QWidget* resultsSide = nullptr;
    QListWidget* results = nullptr;
    QLabel* found = nullptr;
    QAction* previous = nullptr;
    QAction* next = nullptr;
    QAction* smaller = nullptr;
    QAction* larger = nullptr;
    QList<QTreeWidgetItem*> items;  ///< by the rows of the index
    QList<int> resultRows;
};

}  // namespace numerello
