#pragma once

#include <QMap>
#include <QWidget>
#include <string>
#include <string_view>

#include "help/search.h"

class QAction;
class QLineEdit;
class QStackedWidget;
class QToolBar;

namespace numerello {

class HelpContents;
class HelpResults;
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

  signals:
    /// The problem file of a page's example, its whole text, is to be put on the sheet.
    void ExampleAsked(const std::string& problemFile);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakeSide();
    QToolBar* MakeToolbar();
    void MakeCommands(QToolBar* bar);
    static void AddButton(QToolBar& bar, QAction& action);
    QAction& Command(const char* name) const;
    void SizeIcons();
    void Raise();

    void Search();
    const std::string& PageOf(int row) const;
    void OpenRow(int row);
    void OpenContents(int row);
    void MirrorPage();
    void MirrorZoom();
    void GoBeside(int steps);

    void GoBack();
    void GoForward();
    void GoHome();
    void GoToPrevious();
    void GoToNext();
    void ZoomOut();
    void ZoomIn();
    void ZoomAsUsual();
    void Find();
    void ShowHelpOnHelp();

    HelpIndex index;
    HelpView* view;
    QLineEdit* search = nullptr;
    QStackedWidget* side = nullptr;
    HelpContents* contents = nullptr;
    HelpResults* results = nullptr;
    QMap<QString, QAction*> commands;  ///< by name
};

}  // namespace numerello
