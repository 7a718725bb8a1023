#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>

#include "tests/ui/printed_forms.h"
#include "ui/frm_print_preview.h"

namespace numerello {
namespace {

const HeadingLines kHeading{"Vantrel Numerello", "Practice Test", "03/09/2026"};
constexpr Date kDay{.year = 2026, .month = 3, .day = 9};

std::vector<std::string> Sums(int count) {
    std::vector<std::string> lines{"", "Add:"};
    for (int i = 1; i <= count; ++i) {
        lines.push_back(std::to_string(i) + ") 4 + " + std::to_string(i));
    }
    return lines;
}

class Preview : public testing::Test {
  protected:
    void Open(std::vector<std::string> lines) {
        MadeTest test{std::move(lines), [] {
                          return std::vector<WorkedProblem>{{"1) x+2=7", WorkedEquation()}};
                      }};
        form = std::make_unique<FrmPrintPreview>(PreviewOfTest(kHeading, std::move(test), kDay),
                                                 device);
        ShowActive(*form);
    }

    QPushButton& Button(const char* name) { return Find<QPushButton>(*form, QLatin1String(name)); }
    QString Label(const char* name) { return Find<QLabel>(*form, QLatin1String(name)).text(); }
    PreviewPicture& Picture(int index) {
        const QString name = QStringLiteral("Picture1(%1)").arg(index);
        return static_cast<PreviewPicture&>(Find<QWidget>(*form, name));
    }
    std::vector<int> ShownPictures() {
        std::vector<int> shown;
        for (int i = 0; i < Label("Label3").toInt(); ++i) {
            if (Picture(i).isVisible()) {
                shown.push_back(i);
            }
        }
        return shown;
    }
    void ExpectPage(int page) {
        EXPECT_EQ(Label("Label4"), QString::number(page + 1));
        EXPECT_EQ(ShownPictures(), std::vector<int>{page});
    }

    PrintDevice device;
    QTemporaryDir folder;
    std::unique_ptr<FrmPrintPreview> form;
};

TEST_F(Preview, OpensWithTheDocumentedTexts) {
    Open(Sums(3));
    EXPECT_EQ(form->objectName(), "frmPrintPreview");
    EXPECT_EQ(form->windowTitle(), "Print Preview");
    EXPECT_EQ(Button("Command1").text(), "Print");
    EXPECT_EQ(Button("Command2").text(), "Exit");
    EXPECT_EQ(Button("Command3").text(), "Print Setup...");
    EXPECT_EQ(Button("AnswerKey").text(), "Answer Key...");
    EXPECT_EQ(Label("Label1"), "Unknown");
    QStringList groups;
    for (const QGroupBox* group : form->findChildren<QGroupBox*>()) {
        groups.append(group->title());
    }
    groups.sort();
    EXPECT_EQ(groups, (QStringList{"Page", "Printer Device Name"}));
}

TEST_F(Preview, OfOnePageStaysOnIt) {
    Open(Sums(3));
    EXPECT_EQ(Label("Label3"), "1");
    ExpectPage(0);
    Click(Button("Command5"));
    ExpectPage(0);
    Click(Button("Command4"));
    ExpectPage(0);
    EXPECT_TRUE(Button("Command4").isEnabled());
    EXPECT_TRUE(Button("Command5").isEnabled());
}

TEST_F(Preview, TurnsItsPages) {
    Open(Sums(60));
    EXPECT_EQ(Label("Label3"), "3");
    ExpectPage(0);
    Click(Button("Command5"));
    ExpectPage(1);
    PressKey(*form, Qt::Key_PageDown);
    ExpectPage(2);
    PressKey(*form, Qt::Key_PageDown);
    ExpectPage(2);
    PressKey(*form, Qt::Key_PageUp);
    ExpectPage(1);
    Click(Button("Command4"));
    Click(Button("Command4"));
    ExpectPage(0);
}

TEST_F(Preview, OfAnEmptyTestIsTheHeading) {
    Open({});
    EXPECT_EQ(Label("Label3"), "1");
    EXPECT_EQ(Picture(0).accessibleDescription(), "Vantrel Numerello\nPractice Test\n03/09/2026");
}

TEST_F(Preview, PagesAreWhitePaperWithInkInTheShapeOfThePrintersPaper) {
    Open(Sums(3));
    const QImage page = Picture(0).grab().toImage();
    EXPECT_EQ(page.pixelColor(2, 2), QColor(Qt::white));
    int dark = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            dark += qGray(page.pixel(x, y)) < 100 ? 1 : 0;
        }
    }
    EXPECT_GT(dark, 100);
    const PaperSize paper = device.Paper();
    EXPECT_NEAR(Picture(0).height(), Picture(0).width() * paper.height / paper.width, 1);
}

TEST_F(Preview, PagesGrowWithTheWindowAndAreNeverSmallerThanEightPoints) {
    Open(Sums(3));
    const double natural = Picture(0).NaturalSize().width();
    EXPECT_NEAR(natural, device.Paper().width / 25.4 * 96 * 8 / 12, 1e-6);
    form->resize(400, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(Picture(0).width(), qRound(natural));
    form->resize(1200, 700);
    QCoreApplication::processEvents();
    const QWidget* view = Find<QScrollArea>(*form, "Pages").viewport();
    EXPECT_GT(Picture(0).width(), natural);
    EXPECT_LE(Picture(0).width(), view->width());
}

TEST_F(Preview, IsReadAloudPageByPage) {
    Open({"", "Simplify:", "1) #1/2#+x^2^"});
    EXPECT_EQ(Picture(0).accessibleName(), "Page 1");
    EXPECT_TRUE(Picture(0).accessibleDescription().contains("one half plus x squared"))
        << Picture(0).accessibleDescription().toStdString();
}

TEST_F(Preview, AgreesWithItsPrintLineByLine) {
    Open(Sums(60));
    QStringList previewed;
    for (int page = 0; page < Label("Label3").toInt(); ++page) {
        previewed += Picture(page).accessibleDescription().split(u'\n');
    }
    const QString file = folder.filePath("test.pdf");
    {
        const WhenDialogOpens dialog("CommonDialog1", [&](QWidget& window) {
            EXPECT_EQ(Find<QLineEdit>(window, "fileNameEdit").text(), "Practice Test 03-09-26.pdf");
            SaveAs(file)(window);
        });
        Click(Button("Command1"));
    }
    EXPECT_TRUE(form->isVisible());
    QStringList printed = LinesOfPdf(file);
    ASSERT_EQ(printed.size(), 3 + 1 + 60);
    ASSERT_EQ(previewed.size(), printed.size());
    EXPECT_EQ(printed.mid(0, 4),
              (QStringList{"Vantrel Numerello", "Practice Test", "03/09/2026", "Add:"}));
    EXPECT_EQ(printed.back(), "60) 4 + 60");
    for (qsizetype i = 4; i < printed.size(); ++i) {
        EXPECT_EQ(previewed[i], printed[i].replace("+", "plus")) << i;
    }
}

TEST_F(Preview, SavesAPdfBesidePrinting) {
    Open(Sums(3));
    const QString file = folder.filePath("test.pdf");
    const WhenDialogOpens dialog("CommonDialog1", SaveAs(file));
    Click(Button("SavePdf"));
    EXPECT_EQ(LinesOfPdf(file).size(), 3 + 1 + 3);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Preview, PrintsByTheUsualKey) {
    Open(Sums(3));
    const QString file = folder.filePath("test.pdf");
    const WhenDialogOpens dialog("CommonDialog1", SaveAs(file));
    PressKey(*form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(LinesOfPdf(file).size(), 3 + 1 + 3);
}

TEST_F(Preview, TellsOfAFailedFile) {
    Open(Sums(3));
    const WhenDialogOpens dialog("CommonDialog1", SaveAs("/proc/none.pdf"));
    const WhenDialogOpens box("MessageBox",
                              [](QWidget& window) { PressKey(window, Qt::Key_Return); });
    Click(Button("Command1"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Preview, ShowsTheAnswerKeyInAPreviewOfItsOwn) {
    Open(Sums(3));
    const QString file = folder.filePath("key.pdf");
    const WhenDialogOpens save("CommonDialog1", [&](QWidget& window) {
        EXPECT_EQ(Find<QLineEdit>(window, "fileNameEdit").text(), "Answer Key 03-09-26.pdf");
        SaveAs(file)(window);
    });
    const WhenDialogOpens key(
        [](const QWidget& window) { return window.windowTitle() == "Answer Key"; },
        [](QWidget& window) {
            EXPECT_EQ(window.findChild<QPushButton*>("AnswerKey"), nullptr);
            EXPECT_EQ(Find<QLabel>(window, "Label3").text(), "1");
            Click(Find<QPushButton>(window, "Command1"));
            EXPECT_TRUE(window.isVisible());
            Click(Find<QPushButton>(window, "Command2"));
        },
        "Answer Key");
    Click(Button("AnswerKey"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(LinesOfPdf(file), (QStringList{"Vantrel Numerello", "Practice Test", "03/09/2026",
                                             "1) x+2=7", "x=7-2", "x=5"}));
}

TEST_F(Preview, ClosesByExitAndEsc) {
    Open(Sums(3));
    Click(Button("Command2"));
    EXPECT_FALSE(form->isVisible());
    Open(Sums(3));
    PressKey(*form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(Preview, CancelledSetupChangesNothing) {
    Open(Sums(60));
    Click(Button("Command5"));
    const WhenDialogOpens dialog("PrinterDialog", CancelDialog);
    Click(Button("Command3"));
    ExpectPage(1);
    EXPECT_EQ(Label("Label1"), "Unknown");
}

TEST_F(Preview, NamesEveryControl) {
    Open(Sums(60));
    for (const QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            const bool hasText = button != nullptr && !button->text().isEmpty();
            EXPECT_TRUE(hasText || !control->accessibleName().isEmpty())
                << control->objectName().toStdString() << control->metaObject()->className();
        }
    }
}

}  // namespace
}  // namespace numerello
