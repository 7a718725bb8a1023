#pragma once

#include <QMainWindow>
#include <QPointer>
#include <optional>

#include "core/clock.h"
#include "core/problem.h"
#include "output/print_heading.h"
#include "ui/frm_help.h"
#include "ui/graph_holder.h"
#include "ui/print_device.h"

namespace numerello {

/// The windows that the frame opens over and beside itself: the graph, print options, the practice
/// test, the help. What was chosen in one of them is kept while the program runs.
class FrameWindows : public QObject {
    Q_OBJECT

  public:
    /// All three must outlive this.
    FrameWindows(const Problem& problem, const Clock& clock, QMainWindow& frame);

    /// Shows what the problem asks to be drawn, beside what is written at this place of the screen.
    void ShowGraph(const QRect& written);
    void CloseGraph();

    /// Whether there is something to print.
    void SetPrintEnabled(bool enabled);
    void ShowPrintSetup();
    void ShowPrinterDialog();

    void ShowPracticeTest();

    /// Opens the help at the page of the topic on the sheet.
    void ShowHelp();
    /// What was opened without the frame waiting for it.
    void CloseAll();

  signals:
    /// The help wants its example, the text of a problem file, put on the sheet.
    void ExampleAsked(const std::string& problemFile);

  private:
    GraphPainter OpenGraph() const;
    void ShowPrintSetupOver(QWidget* window);

    const Problem& problem;
    const Clock& clock;
    QMainWindow& frame;
    GraphHolder graphs;
    PrintDevice device;
    std::optional<HeadingLines> testHeading;
    QPointer<FrmHelp> help;
};

}  // namespace numerello
