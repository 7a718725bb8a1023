#include <gtest/gtest.h>

#include <QPageSize>
#include <QPrinter>

#include "output/print_solution.h"
#include "tests/ui/printed_forms.h"
#include "ui/export_pdf.h"
#include "ui/print_job.h"

namespace numerello {
namespace {

const QString kEquation =
    QStringLiteral("Solving Equations BB x+2=7 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101");

class Export : public testing::Test {
  protected:
    int Run(const QString& line) {
        QFile file(Problem());
        file.open(QIODevice::WriteOnly);
        file.write(line.toUtf8());
        file.close();
        return Write(Problem());
    }

    int Write(const QString& file) {
        message = ExportProblem(file, Pdf());
        return message.empty() ? 0 : 1;
    }

    QString Problem() const { return folder.filePath("problem.nrl"); }
    QString Pdf() const { return folder.filePath("out.pdf"); }

    QTemporaryDir folder;
    std::string message;
};

TEST_F(Export, WritesTheLinesAndTheirReasons) {
    EXPECT_EQ(Run(kEquation), 0) << message;
    EXPECT_EQ(message, "");
    const QStringList lines = LinesOfPdf(Pdf());
    EXPECT_EQ(lines.mid(0, 2), (QStringList{"Vantrel Numerello", "Solving Equations"}));
    ASSERT_GT(lines.size(), 6);
    EXPECT_EQ(lines[3], "x+2=7");
    EXPECT_TRUE(lines.contains("x=5"));
    EXPECT_TRUE(lines.back().endsWith(u'.')) << "a reason";
    EXPECT_EQ(PagesOfPdf(Pdf()), 1);
}

TEST_F(Export, DrawsColumns) {
    EXPECT_EQ(Run("Division BB  BB 95 BB 7 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 203"), 0);
    const QStringList lines = LinesOfPdf(Pdf());
    ASSERT_GE(lines.size(), 5);
    EXPECT_EQ(lines[3], "1 3 r 4");
    EXPECT_EQ(QString(lines[4]).remove(u' '), "7)95");
}

TEST_F(Export, RefusesAFileThatIsNone) {
    EXPECT_EQ(Run("no problem"), 1);
    EXPECT_NE(message, "");
    EXPECT_NE(message.find("problem.nrl"), std::string::npos);
    EXPECT_FALSE(QFile::exists(Pdf()));
    EXPECT_EQ(Write(folder.filePath("none.nrl")), 1);
    EXPECT_NE(message.find("none.nrl"), std::string::npos);
}

TEST_F(Export, RefusesAProblemThatCannotBeWorked) {
    EXPECT_EQ(Run("Arithmetic BB 4/0 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91"), 1);
    EXPECT_NE(message.find("division by 0"), std::string::npos) << message;
    EXPECT_FALSE(QFile::exists(Pdf()));
}

TEST_F(Export, RefusesABoxProblemThatIsNotReady) {
    EXPECT_EQ(Run("Area of a Circle BB  BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 7"), 1);
    EXPECT_NE(message.find("is not a finished problem"), std::string::npos) << message;
}

TEST_F(Export, TellsOfAFileThatCannotBeWritten) {
    Run(kEquation);
    message = ExportProblem(Problem(), "/proc/none.pdf");
    EXPECT_NE(message.find("/proc/none.pdf"), std::string::npos) << message;
}

TEST_F(Export, PaintsAGraphOnItsPage) {
    EXPECT_EQ(Run("Plotting A Point BB (3,4) BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 108"), 0)
        << message;
    EXPECT_EQ(PagesOfPdf(Pdf()), 1) << "the graph is all there is";
    const QStringList lines = LinesOfPdf(Pdf());
    EXPECT_EQ(lines.mid(0, 2), (QStringList{"Vantrel Numerello", "Plotting A Point"}));
    // The range stands at the ends of the axes.
    EXPECT_TRUE(lines.join(u' ').contains("-20"));
}

TEST_F(Export, PutsAGraphBehindTheLinesOfItsProblem) {
    EXPECT_EQ(
        Run("Graphing A Linear Equation BB y=2x+1 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 105"),
        0)
        << message;
    EXPECT_EQ(PagesOfPdf(Pdf()), 2);
    EXPECT_TRUE(LinesOfPdf(Pdf()).contains("y=2x+1"));
}

TEST_F(Export, NeedsOneProblemFile) {
    EXPECT_EQ(ExportPdf(Pdf(), QStringList()), 2);
    EXPECT_EQ(ExportPdf(Pdf(), QStringList{"a.nrl", "b.nrl"}), 2);
    EXPECT_EQ(ExportPdf("", QStringList{"a.nrl"}), 2);
    EXPECT_FALSE(QFile::exists(Pdf()));
}

class SentPages : public testing::Test {
  protected:
    struct Quiet : Learner {
        void MessageBox(std::string_view, std::string_view) override {}
        bool Confirm(std::string_view, std::string_view) override { return false; }
        std::optional<std::string> InputBox(std::string_view, std::string_view) override {
            return {};
        }
    };

    static PrintJob ThreePages() {
        return {.name = "three", .compose = [](Surface& Printer, Learner&) {
                    for (const char* page : {"one", "two", "three"}) {
                        Printer.Print(page);
                        Printer.NewPage();
                    }
                }};
    }

    Quiet learner;
    QTemporaryDir folder;
};

TEST_F(SentPages, ReachAPrinterOneByOne) {
    const ComposedJob job(ThreePages(), kLetter, learner);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("three.pdf"));
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setFullPage(true);
    EXPECT_TRUE(SendPages(job, printer));
    EXPECT_EQ(PagesOfPdf(folder.filePath("three.pdf")), 3);
    EXPECT_EQ(LinesOfPdf(folder.filePath("three.pdf")), (QStringList{"one", "two", "three"}));
}

TEST_F(SentPages, ThatAPrinterRefusesAreNotSent) {
    const ComposedJob job(ThreePages(), kLetter, learner);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName("/proc/none.pdf");
    EXPECT_FALSE(SendPages(job, printer));
}

TEST_F(SentPages, ThatWereNotPaintedToTheirEndAreNoFile) {
    // The graph's painter gives up, and the pages with it.
    const PrintJob broken{
        .name = "broken",
        .compose = [](Surface& Printer, Learner&) { Printer.PaintPicture(kGraphPicture, 0, 0); },
        .graph = [](QPainter& painter, QRectF) { painter.end(); }};
    const ComposedJob job(broken, kA4, learner);
    EXPECT_EQ(PdfOf(job, UsualLayout(), "broken"), std::nullopt);
}

TEST_F(SentPages, AreOneEmptyPageOfAnEmptyJob) {
    const ComposedJob job({.name = "empty", .compose = [](Surface&, Learner&) {}}, kA4, learner);
    EXPECT_EQ(job.PageCount(), 1);
    QFile file(folder.filePath("empty.pdf"));
    file.open(QIODevice::WriteOnly);
    file.write(PdfOf(job, UsualLayout(), "empty").value());
    file.close();
    EXPECT_EQ(PagesOfPdf(file.fileName()), 1);
}

TEST_F(SentPages, KeepTheirLettersSizeOnEveryPaper) {
    // A letter's outline is as wide and as high on a landscape page as on an upright one.
    const auto inkOf = [&](PaperSize paper) {
        const PrintJob letter{.name = "H", .compose = [](Surface& Printer, Learner&) {
                                  Printer.CurrentX = Printer.CurrentY = 100;
                                  Printer.Print("H");
                              }};
        const ComposedJob job(letter, paper, learner);
        QImage image(1200, 1200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        job.Paint(painter, 0);
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 128) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink.size();
    };
    const QSize upright = inkOf({210, 297});
    const QSize turned = inkOf({297, 210});
    EXPECT_NEAR(upright.width(), turned.width(), 1);
    EXPECT_NEAR(upright.height(), turned.height(), 1);
    // Capitals of a 16-pixel face are about 11 high.
    EXPECT_NEAR(upright.height(), 11, 1.5);
}

}  // namespace
}  // namespace numerello
