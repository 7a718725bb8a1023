#pragma once

#include <QObject>
#include <QPointer>

#include "core/problem.h"
#include "graph/graph_settings.h"
#include "ui/frm_graph.h"

namespace numerello {

/// The one graph window that a frame has at a time, and what was chosen for all of them.
class GraphHolder : public QObject {
    Q_OBJECT

  public:
    /// The windows stand over the frame.
    explicit GraphHolder(QWidget* frame);

    /// Opens a window on what the problem asks for; one that is open shows it and comes to the
    /// front. A new one leaves free what is written at this place of the screen.
    void Show(const Problem& problem, const QRect& written);
    void Close();

    /// The open window, null when there is none.
    FrmGraph* Form() const;

    /// As in the frame; also for windows to come.
    void SetPrintEnabled(bool enabled);

  signals:
    /// The window's Print and Print Setup.
    void PrintAsked();
    void PrintSetupAsked();
    /// Its keys for the help and the program's end.
    void HelpAsked();
    void ExitAsked();

  private:
    QWidget* frame;
    GraphSettings settings;
    QPointer<FrmGraph> form;
    bool printEnabled = false;
};

}  // namespace numerello
