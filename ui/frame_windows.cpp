#include "ui/frame_windows.h"

#include "ui/frm_practice_test.h"
#include "ui/frm_print_setup.h"
#include "ui/test_maker.h"

namespace numerello {

FrameWindows::FrameWindows(const Problem& problem, const Clock& clock, QMainWindow& frame)
    : problem(problem), clock(clock), frame(frame), graphs(&frame) {
    connect(&graphs, &GraphHolder::PrintAsked, this, [this] { ShowPrintSetupOver(graphs.Form()); });
    connect(&graphs, &GraphHolder::PrintSetupAsked, this,
            [this] { device.mnuPrintSetup_Click(graphs.Form()); });
    connect(&graphs, &GraphHolder::HelpAsked, this, &FrameWindows::ShowHelp);
    connect(&graphs, &GraphHolder::ExitAsked, &frame, &QWidget::close, Qt::QueuedConnection);
}

void FrameWindows::ShowGraph(const QRect& written) {
    graphs.Show(problem, written);
}

void FrameWindows::CloseGraph() {
    graphs.Close();
}

void FrameWindows::SetPrintEnabled(bool enabled) {
    graphs.SetPrintEnabled(enabled);
}

GraphPainter FrameWindows::OpenGraph() const {
    FrmGraph* form = graphs.Form();
    if (form == nullptr) {
        return {};
    }
    return [form](QPainter& painter, QRectF square) { form->Paint(painter, square); };
}

void FrameWindows::ShowPrintSetup() {
    ShowPrintSetupOver(&frame);
}

void FrameWindows::ShowPrintSetupOver(QWidget* window) {
    FrmPrintSetup(problem, device, clock, OpenGraph(), window).exec();
}

void FrameWindows::ShowPrinterDialog() {
    device.mnuPrintSetup_Click(&frame);
}

void FrameWindows::ShowPracticeTest() {
    FrmPracticeTest(MakerOfTests(clock, problem.settings), testHeading, device, clock, &frame)
        .exec();
}

void FrameWindows::ShowHelp() {
    if (help == nullptr) {
        help = new FrmHelp(&frame);
        // The click is over before the sheet changes under it.
        connect(help, &FrmHelp::ExampleAsked, this, &FrameWindows::ExampleAsked,
                Qt::QueuedConnection);
    }
    help->ShowTopic(problem.topic.TopicTitle);
}

void FrameWindows::CloseAll() {
    graphs.Close();
    delete help;
}

}  // namespace numerello
