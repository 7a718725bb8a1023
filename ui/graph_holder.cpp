#include "ui/graph_holder.h"

namespace numerello {

GraphHolder::GraphHolder(QWidget* frame) : QObject(frame), frame(frame) {}

FrmGraph* GraphHolder::Form() const {
    // A window that was closed is deleted later.
    return form && form->isVisible() ? form.data() : nullptr;
}

void GraphHolder::Show(const Problem& problem, const QRect& written) {
    if (FrmGraph* open = Form()) {
        open->ShowRequest(problem);
        return;
    }
    form = new FrmGraph(problem, settings, frame);
    form->SetPrintEnabled(printEnabled);
    connect(form, &FrmGraph::PrintAsked, this, &GraphHolder::PrintAsked);
    connect(form, &FrmGraph::PrintSetupAsked, this, &GraphHolder::PrintSetupAsked);
    connect(form, &FrmGraph::HelpAsked, this, &GraphHolder::HelpAsked);
    connect(form, &FrmGraph::ExitAsked, this, &GraphHolder::ExitAsked);
    form->Open(written);
}

void GraphHolder::Close() {
    if (FrmGraph* open = Form()) {
        open->close();
    }
}

void GraphHolder::SetPrintEnabled(bool enabled) {
    printEnabled = enabled;
    if (FrmGraph* open = Form()) {
        open->SetPrintEnabled(enabled);
    }
}

}  // namespace numerello
