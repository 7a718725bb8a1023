#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QPainter>
#include <QPointer>

#include "core/topic_codes.h"
#include "tests/ui/window.h"
#include "ui/frm_graph.h"

namespace numerello {

inline Problem Asked(const char* equation) {
    Problem problem;
    problem.topic.ProblemType = kGraphingAnEquation;
    problem.topic.TopicTitle = "Graphing A Linear Equation";
    problem.graph.GraphMode = kEquationGraph;
    problem.typed.ExprVariants[0] = equation;
    return problem;
}

inline Problem AskedPoint(int code) {
    Problem problem;
    problem.topic.ProblemType = code;
    problem.topic.TopicTitle = "Plotting A Point";
    problem.graph = {kOnePointGraph, 4, -8, 0, 0};
    return problem;
}

/// The graph's window alone on the screen.
class GraphWindow : public testing::Test {
  protected:
    ~GraphWindow() override { delete form; }

    FrmGraph& Open(const Problem& problem) {
        form = new FrmGraph(problem, settings, nullptr);
        form->Open();
        ShowActive(*form);
        return *form;
    }
    FrmGraph& OpenLine() { return Open(Asked("+1/1y^+1=+2/1x+3/1")); }

    QAction& Command(const char* name) { return Find<QAction>(*form, QString::fromUtf8(name)); }
    bool Ticked(const char* name) { return Command(name).isChecked(); }
    GraphView& Picture() { return Find<GraphView>(*form, QStringLiteral("Picture1")); }
    ZoomButton& In() { return *form->findChild<ZoomButton*>(QStringLiteral("Command1")); }
    ZoomButton& Out() { return *form->findChild<ZoomButton*>(QStringLiteral("Command2")); }
    CoordinateView& List() { return Find<CoordinateView>(*form, QStringLiteral("List1")); }
    double Edge() { return form->Shown().Range().GraphXMax; }
    QString EntryAt(int row) { return List().model()->index(row, 0).data().toString(); }

    /// The color of the drawing at a place of the graph.
    QColor ColorAt(double x, double y) {
        QImage image(400, 400, QImage::Format_RGB32);
        QPainter painter(&image);
        form->Paint(painter, QRectF(0, 0, 400, 400));
        painter.end();
        const double edge = Edge();
        return image.pixelColor(qRound((x + edge) / (2 * edge) * 399),
                                qRound((edge - y) / (2 * edge) * 399));
    }

    GraphSettings settings;
    QPointer<FrmGraph> form;
};

}  // namespace numerello
