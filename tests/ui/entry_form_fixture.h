#pragma once

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <memory>

#include "catalogue/input_classes.h"
#include "catalogue/topic_choice.h"
#include "catalogue/topics.h"
#include "tests/ui/window.h"
#include "ui/frm_paper.h"
#include "ui/text.h"

namespace numerello {

inline constexpr int kRounding = 98;

/// The sheet of one topic in a window of its own.
class EntryFormTest : public testing::Test {
  protected:
    /// The topic is opened with this mask, or its own when there is none.
    void Open(int code, int mask = 0) {
        paper.reset();
        problem = Problem();
        MersenneSource random;
        TreeViewSelect(FindTopicByCode(code)->caption, problem.topic, FixedClock(0), random);
        problem.topic.InputMask = mask != 0 ? mask : problem.topic.InputMask;
        paper = std::make_unique<FrmPaper>(problem, learner, nullptr);
        paper->resize(1000, 690);
        ShowActive(*paper);
        paper->setFocus();
    }

    /// Opens 98 for whole numbers and decimals.
    void OpenRounding() { Open(kRounding, kNumbers | kDecimalPoint); }

    QWidget& Sheet() { return Find<QWidget>(*paper, QStringLiteral("Paper0")); }
    EntryBox& Box(int number) {
        return Find<EntryBox>(*paper, QStringLiteral("Text%1").arg(number));
    }
    EntryList& List(int number) {
        return Find<EntryList>(*paper, QStringLiteral("Combo%1").arg(number));
    }
    QLabel& Label(const QString& text) {
        for (QLabel* label : Sheet().findChildren<QLabel*>()) {
            if (label->text() == text) {
                return *label;
            }
        }
        throw std::runtime_error("there is no label '" + text.toStdString() + "'");
    }
    void Type(const QString& text) { TypeText(*paper, text); }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        PressKey(*paper, Qt::Key_V, Qt::ControlModifier);
    }
    QString Focused() {
        const QWidget* focused = paper->focusWidget();
        return focused == nullptr ? QString() : focused->objectName();
    }

    /// Types ten digits into each box that takes them.
    void FillToTheBrim(const EntryLayout& layout) {
        for (const EntryBoxLayout& box : layout.boxes) {
            Box(box.number).setFocus();
            Type(QStringLiteral("8888888888"));
        }
    }

    Problem problem;
    WindowLearner learner{nullptr};
    std::unique_ptr<FrmPaper> paper;
};

}  // namespace numerello
