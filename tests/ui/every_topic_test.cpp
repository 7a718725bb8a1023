#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "catalogue/topics.h"
#include "core/text.h"
#include "core/topic_codes.h"
#include "tests/ui/frm_main_fixture.h"
#include "ui/export_pdf.h"

namespace numerello {
namespace {

/// Somebody who answers what a worked example may ask, and notes what it tells.
class Answering {
  public:
    explicit Answering(const Problem& problem) : problem(problem) {
        timer.callOnTimeout([this] { Look(); });
        timer.start(std::chrono::milliseconds(5));
    }

    QStringList told;
    bool wasAsked = false;

  private:
    void Look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr) {
            return;
        }
        if (auto* question = qobject_cast<QInputDialog*>(modal)) {
            wasAsked = true;
            const bool wantsLetter = problem.topic.ProblemType == kGraphingAnEquation;
            question->setTextValue(wantsLetter ? QString::fromStdString(problem.typed.VarNames[1])
                                               : QStringLiteral("2"));
            question->accept();
        } else if (modal->objectName() == QStringLiteral("MessageBox")) {
            told << modal->property("text").toString();
            PressKey(*modal, Qt::Key_Return);
        }
    }

    const Problem& problem;
    QTimer timer;
};

/// An example may end in one of the messages that end a solve, in no other.
bool IsFailure(const QString& message) {
    return message.endsWith(QStringLiteral("Click the 'Erase' button and try again."));
}

std::vector<std::string> LinesOf(const Problem& problem) {
    std::vector<std::string> lines;
    for (int i = 1; i < problem.log.StepCount; ++i) {
        lines.push_back(problem.log.StepText[i]);
    }
    return lines;
}

/// One topic after the other as a learner uses it: example, steps, explanations, print, save,
/// erase, load.
class EveryTopic : public Window {
  protected:
    EveryTopic() { frame.resize(1280, 800); }

    QString Saved() const { return documents.filePath(QStringLiteral("problem.nrl")); }

    /// A topic that stands in no tree comes from a file alone.
    void Open(const Topic& topic) {
        if (!topic.parent.empty()) {
            Choose(QString::fromStdString(std::string(topic.caption)));
            return;
        }
        QFile file(Saved());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(Text(topic.caption, " BB  BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB ",
                        std::to_string(topic.code), "\n")
                       .c_str());
        file.close();
        Drop();
    }

    void Drop() {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(Saved())});
        const QPoint place(300, 300);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&frame, &enter);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&frame, &drop);
        QTest::qWait(1);
        ShowActive(frame);
    }

    void Save() {
        QFile::remove(Saved());
        const WhenDialogOpens chooser(QStringLiteral("CommonDialog1"), [this](QWidget& dialog) {
            auto& edit = Find<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
            edit.setText(Saved());
            edit.setFocus();
            PressKey(dialog, Qt::Key_Return);
        });
        Command("mnuSave").trigger();
        ShowActive(frame);
    }

    bool ArrowWaits() {
        const auto arrows = frame.findChildren<ArrowButton*>();
        return std::any_of(arrows.begin(), arrows.end(),
                           [](const ArrowButton* arrow) { return arrow->isVisible(); });
    }

    /// Asks for the explanation before each step.
    void PlayToTheEnd() {
        constexpr int kMostSteps = 400;
        for (int step = 0; ArrowWaits(); ++step) {
            ASSERT_LT(step, kMostSteps) << "the arrow never goes";
            Command("mnuExp").trigger();
            EXPECT_TRUE(Explanation().isVisible()) << "nothing explains step " << step;
            Enter();
            EXPECT_FALSE(Explanation().isVisible());
        }
    }

    /// The text of every box that can be seen has a place of its own.
    void ExpectNoBoxOverAnother() {
        std::vector<QRect> places;
        for (const QWidget* box : frame.findChildren<QLineEdit*>()) {
            if (box->isVisible()) {
                places.emplace_back(box->mapTo(&frame, QPoint()), box->size());
            }
        }
        for (std::size_t one = 0; one < places.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other) {
                EXPECT_FALSE(places[one].intersects(places[other]));
            }
        }
    }

    /// What somebody heard while a problem was played.
    struct Heard {
        QStringList told;
        bool wasAsked;
    };

    Heard PlayExample() {
        const Answering learner(Now());
        Command("mnuExample").trigger();
        ShowActive(frame);
        PlayToTheEnd();
        EXPECT_FALSE(Now().columns.Any());
        for (const QString& message : learner.told) {
            EXPECT_TRUE(IsFailure(message)) << message.toStdString();
        }
        return {learner.told, learner.wasAsked};
    }

    QStringList LoadAndPlay() {
        const Answering learner(Now());
        Drop();
        PlayToTheEnd();
        return learner.told;
    }

    /// Without a window nobody answers what a problem asks, so it is not worked.
    void ExpectExport(bool worked) {
        const QString pdf = documents.filePath(QStringLiteral("out.pdf"));
        QFile::remove(pdf);
        const std::string trouble = ExportProblem(Saved(), pdf);
        EXPECT_EQ(trouble.empty(), worked) << trouble;
        EXPECT_EQ(QFile::exists(pdf), worked);
    }

    void GoThrough(const Topic& topic) {
        Open(topic);
        ExpectNoBoxOverAnother();
        const auto [told, wasAsked] = PlayExample();
        const std::vector<std::string> lines = LinesOf(Now());
        const std::string sheet = SheetText().toStdString();
        const bool hasDrawingAlone =
            topic.code == kLineThroughTwoPoints || topic.code == kPlottingAPoint;
        EXPECT_TRUE(hasDrawingAlone || !sheet.empty());
        Save();
        ExpectExport(told.isEmpty() && !wasAsked);
        Erase();
        EXPECT_EQ(SheetText(), "");
        EXPECT_EQ(LoadAndPlay(), told);
        EXPECT_EQ(LinesOf(Now()), lines);
        EXPECT_EQ(SheetText().toStdString(), sheet);
    }

    void GoThroughAll() {
        for (const Topic& topic : Topics()) {
            SCOPED_TRACE(topic.caption);
            GoThrough(topic);
        }
    }
};

TEST_F(EveryTopic, GoesFromExampleToPrintAndBackFromItsFile) {
    GoThroughAll();
}

TEST_F(EveryTopic, DoesSoWithComplexExamples) {
    const WhenDialogOpens options(QStringLiteral("frmOptions"), [](QWidget& dialog) {
        Find<QCheckBox>(dialog, QStringLiteral("Check3")).setChecked(true);
        PressButton(dialog, QStringLiteral("OK"));
    });
    Command("mnuChange").trigger();
    ASSERT_EQ(Now().settings.ComplexEx, 2);
    GoThroughAll();
}

}  // namespace
}  // namespace numerello
