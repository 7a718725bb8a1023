#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "tests/ui/printed_forms.h"
#include "ui/frm_print_setup.h"

namespace numerello {
namespace {

const FixedClock kClock(0, {.year = 2026, .month = 3, .day = 9});

class PrintOptions : public testing::Test {
  protected:
    void Open(int code = 101, GraphPainter graph = {}) {
        problem.topic.ProblemType = code;
        form = std::make_unique<FrmPrintSetup>(problem, device, kClock, std::move(graph));
        ShowActive(*form);
    }

    QCheckBox& Check(const char* name) { return Find<QCheckBox>(*form, QLatin1String(name)); }
    QPushButton& Button(const char* name) { return Find<QPushButton>(*form, QLatin1String(name)); }
    QLineEdit& Text(const char* name) { return Find<QLineEdit>(*form, QLatin1String(name)); }
    QString File() const { return folder.filePath(QStringLiteral("out.pdf")); }

    Problem problem = WorkedEquation();
    PrintDevice device;
    QTemporaryDir folder;
    std::unique_ptr<FrmPrintSetup> form;
};

TEST_F(PrintOptions, OpenWithTheDocumentedTexts) {
    Open();
    EXPECT_EQ(form->objectName(), "frmPrintSetup");
    EXPECT_EQ(form->windowTitle(), "Print Options");
    EXPECT_EQ(Text("Text1").text(), "Vantrel Numerello");
    EXPECT_EQ(Text("Text2").text(), "Solving Equations");
    EXPECT_EQ(Text("Text3").text(), "03/09/2026");
    for (const char* name : {"Text1", "Text2", "Text3"}) {
        EXPECT_EQ(Text(name).font().family(), "VantrelFont");
    }
    // Signs that the face draws as parts of mathematics are shown as they are printed.
    for (const char* sign : {"$", "\\", "`", "{", "~", "&"}) {
        Text("Text1").setText(QStringLiteral("Costs 5") + QLatin1String(sign));
        EXPECT_EQ(Text("Text1").font().family(), "TeX Gyre Pagella") << sign;
        EXPECT_EQ(Text("Text1").font().pointSize(), Text("Text2").font().pointSize());
    }
    Text("Text1").setText(QStringLiteral("Costs 5"));
    EXPECT_EQ(Text("Text1").font().family(), "VantrelFont");
    EXPECT_EQ(Check("Check1").text(), "Graph");
    EXPECT_EQ(Check("Check2").text(), "Problem");
    EXPECT_EQ(Check("Check3").text(), "Explanation");
    EXPECT_EQ(Button("Command1").text(), "Cancel");
    EXPECT_EQ(Button("Command2").text(), "Print");
    EXPECT_EQ(Button("Command3").text(), "Setup...");
    QStringList groups;
    for (const QGroupBox* group : form->findChildren<QGroupBox*>()) {
        groups.append(group->title());
    }
    EXPECT_EQ(groups, (QStringList{"Print Heading", "Printer Device Name"}));
}

TEST_F(PrintOptions, HaveNoPrinterHere) {
    Open();
    EXPECT_EQ(Find<QLabel>(*form, "Label1").text(), "");
}

TEST_F(PrintOptions, TickTheProblemAlone) {
    Open();
    EXPECT_TRUE(Check("Check2").isChecked());
    EXPECT_FALSE(Check("Check3").isChecked());
    EXPECT_TRUE(Check("Check3").isEnabled());
    EXPECT_FALSE(Check("Check1").isEnabled());
    EXPECT_FALSE(Check("Check1").isChecked());
    EXPECT_TRUE(Button("Command2").isEnabled());
}

TEST_F(PrintOptions, OfALineThroughTwoPointsNeedTheGraph) {
    Open(106);
    EXPECT_FALSE(Check("Check2").isEnabled());
    EXPECT_FALSE(Check("Check3").isEnabled());
    EXPECT_FALSE(Button("Command2").isEnabled());
    EXPECT_FALSE(Button("SavePdf").isEnabled());
    Open(108, [](QPainter&, QRectF) {});
    EXPECT_TRUE(Check("Check1").isChecked());
    EXPECT_TRUE(Button("Command2").isEnabled());
}

TEST_F(PrintOptions, OfColumnsHaveNoReasons) {
    Open(203);
    EXPECT_TRUE(Check("Check2").isChecked());
    EXPECT_FALSE(Check("Check3").isEnabled());
}

TEST_F(PrintOptions, OpenPrintWithEachClick) {
    Open(105, [](QPainter&, QRectF) {});
    const auto click = [this](const char* name) { Click(Check(name), {8, 8}); };
    click("Check1");
    EXPECT_TRUE(Button("Command2").isEnabled());
    click("Check2");
    EXPECT_FALSE(Button("Command2").isEnabled());
    click("Check3");
    EXPECT_FALSE(Button("Command2").isEnabled()) << "reasons alone are nothing to print";
    click("Check1");
    EXPECT_TRUE(Button("Command2").isEnabled());
    EXPECT_TRUE(Button("SavePdf").isEnabled());
}

TEST_F(PrintOptions, PrintIntoAFileWithoutAPrinterAndClose) {
    Open();
    {
        const WhenDialogOpens dialog("CommonDialog1", [this](QWidget& window) {
            EXPECT_EQ(window.windowTitle(), "Print to File");
            EXPECT_EQ(Find<QLineEdit>(window, "fileNameEdit").text(),
                      "Solving Equations 03-09-26.pdf");
            SaveAs(File())(window);
        });
        Click(Button("Command2"));
    }
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(LinesOfPdf(File()), (QStringList{"Vantrel Numerello", "Solving Equations",
                                               "03/09/2026", "x+2=7", "x=7-2", "x=5"}));
    EXPECT_EQ(PagesOfPdf(File()), 1);
}

TEST_F(PrintOptions, PutWhatIsTypedAndTickedOnThePage) {
    Open();
    Text("Text1").setText("Class 4b");
    Text("Text2").clear();
    Click(Check("Check3"), {8, 8});
    {
        const WhenDialogOpens dialog("CommonDialog1", SaveAs(File()));
        Click(Button("SavePdf"));
    }
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(LinesOfPdf(File()),
              (QStringList{"Class 4b", "03/09/2026", "x+2=7", "x=7-2", "Move 2 to the other side.",
                           "x=5", "Subtract 2 from 7."}));
}

TEST_F(PrintOptions, PaintTheGraphIntoASquareOnAPageOfItsOwn) {
    QList<QRectF> squares;
    Open(105, [&](QPainter&, QRectF square) { squares.append(square); });
    {
        const WhenDialogOpens dialog("CommonDialog1", SaveAs(File()));
        Click(Button("Command2"));
    }
    EXPECT_EQ(PagesOfPdf(File()), 2);
    ASSERT_EQ(squares.size(), 1);
    EXPECT_DOUBLE_EQ(squares.front().width(), squares.front().height());
    EXPECT_GT(squares.front().width(), 600) << "190 mm of A4 are 718 pixels";
}

TEST_F(PrintOptions, StayAfterACancelledFile) {
    Open();
    const WhenDialogOpens dialog("CommonDialog1", CancelDialog);
    Click(Button("Command2"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintOptions, TellOfAFailureAndStay) {
    Open();
    // Nobody can make a file there.
    const WhenDialogOpens dialog("CommonDialog1", SaveAs("/proc/none.pdf"));
    QString told;
    const WhenDialogOpens box("MessageBox", [&](QWidget& window) {
        told = dynamic_cast<QMessageBox&>(window).text();
        PressKey(window, Qt::Key_Return);
    });
    Click(Button("Command2"));
    EXPECT_EQ(told, "The file could not be saved.");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(PrintOptions, CloseWithoutPrinting) {
    Open();
    const NoDialogOpens none;
    Click(Button("Command1"));
    EXPECT_FALSE(form->isVisible());
    Open();
    PressKey(*form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(PrintOptions, EnterPrints) {
    Open();
    const WhenDialogOpens dialog("CommonDialog1", SaveAs(File()));
    PressKey(*form, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(QFile::exists(File()));
}

TEST_F(PrintOptions, CancelledSetupChangesNothing) {
    Open();
    const PaperSize before = device.Paper();
    const WhenDialogOpens dialog("PrinterDialog", CancelDialog);
    Click(Button("Command3"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Find<QLabel>(*form, "Label1").text(), "");
    EXPECT_EQ(device.Paper().width, before.width);
}

TEST_F(PrintOptions, SetupNamesWhatWasChosenAndPrintAsksForThatFile) {
    Open();
    const QString chosen = folder.filePath("chosen.pdf");
    {
        const WhenDialogOpens dialog("PrinterDialog", [&](QWidget& window) {
            EXPECT_EQ(window.windowTitle(), "Print Setup");
            Find<QLineEdit>(window, "filename").setText(chosen);
            PressButton(window, "OK");
        });
        Click(Button("Command3"));
    }
    EXPECT_EQ(Find<QLabel>(*form, "Label1").text(), "Print to File (PDF)");
    EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "a setup prints nothing";
    const WhenDialogOpens dialog("CommonDialog1", [&](QWidget& window) {
        EXPECT_EQ(Find<QLineEdit>(window, "fileNameEdit").text(), "chosen.pdf");
        PressKey(window, Qt::Key_Return);
    });
    Click(Button("Command2"));
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(QFile::exists(chosen));
}

TEST_F(PrintOptions, NameEveryControl) {
    Open(105, [](QPainter&, QRectF) {});
    for (const QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            const QString name = button ? button->text() : control->accessibleName();
            EXPECT_FALSE(name.isEmpty()) << control->objectName().toStdString();
            EXPECT_FALSE(control->toolTip().isEmpty()) << control->objectName().toStdString();
        }
    }
}

}  // namespace
}  // namespace numerello
