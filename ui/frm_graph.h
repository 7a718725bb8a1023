#pragma once

#include <QMainWindow>
#include <QMap>

#include "graph/graph.h"
#include "ui/coordinate_view.h"
#include "ui/graph_view.h"
#include "ui/zoom_button.h"

namespace numerello {

/// The window of a graph, over the frame and beside it in use. It copies what the problem asks for,
/// so that it may stay open while the next problem is typed. Closing deletes it.
class FrmGraph : public QMainWindow {
    Q_OBJECT

  public:
    /// The settings must outlive the window, which changes them.
    FrmGraph(const Problem& problem, GraphSettings& settings, QWidget* frame);

    /// Shows the window over the frame, where it leaves free what is written there: the last line,
    /// by its place on the screen.
    void Open(const QRect& written = {});

    /// Takes what the problem asks for now and comes to the front; range and colors stay.
    void ShowRequest(const Problem& problem);

    /// Whether the commands that print are open, as they are in the frame.
    void SetPrintEnabled(bool enabled);

    /// Paints the drawing, and nothing that lies on it, into a square, as on paper.
    void Paint(QPainter& painter, const QRectF& square) const { picture->Paint(painter, square); }

    const Graph& Shown() const { return graph; }

  signals:
    void PrintAsked();
    void PrintSetupAsked();
    void HelpAsked();
    void ExitAsked();  ///< from the program, not only from this window

  private:
    void MakeMenus();
    void MakeControls();
    void MakeShortcuts();
    /// Throws std::invalid_argument for a name that is none of the menus'.
    QAction& Command(const char* name) const;
    void Redraw();
    void PlaceControls();
    void ResizeDrawing(int side);
    void ChooseColor(Color& color, const QString& title);

    void Command1_Click();
    void Command2_Click();
    void mnuGraphExit_Click();
    void mnuToggleZoomButtons_Click();
    void mnuToggleCoordinates_Click();
    void mnuGraphQuadrant_Click();
    void mnuGraphHighQuality_Click();
    void mnuGraphHighSpeed_Click();
    void mnuGraphColor_Click();
    void mnuGraphGridColor_Click();
    void mnuGraphDefault_Click();
    void mnuGraphSmall_Click();
    void mnuGraphNormal_Click();
    void mnuGraphMax_Click();

    GraphSettings& settings;
    Graph graph;
    QMap<QString, QAction*> commands;  ///< by control name
    GraphView* picture = nullptr;
    ZoomButton* zoomIn = nullptr;
    ZoomButton* zoomOut = nullptr;
    CoordinateView* list = nullptr;
};

}  // namespace numerello
