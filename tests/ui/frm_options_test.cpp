#include "ui/frm_options.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "tests/ui/window.h"
#include "ui/figure_button.h"

namespace numerello {
namespace {

class Options : public testing::Test {
  protected:
    void Open() {
        dialog = std::make_unique<FrmOptions>(settings);
        ShowActive(*dialog);
    }

    QComboBox& List(const char* name) { return Find<QComboBox>(*dialog, QLatin1String(name)); }
    QCheckBox& Check(const char* name) { return Find<QCheckBox>(*dialog, QLatin1String(name)); }
    FigureButton& Figure(int number) {
        return Find<FigureButton>(*dialog, QStringLiteral("wiz%1").arg(number));
    }

    /// The figure that is framed; 0 unless exactly one is.
    int Framed() {
        int framed = 0;
        for (int number = 1; number <= 3; ++number) {
            if (Figure(number).isChecked()) {
                framed = framed == 0 ? number : -1;
            }
        }
        return std::max(framed, 0);
    }

    AnswerSettings settings;
    std::unique_ptr<FrmOptions> dialog;
};

TEST_F(Options, HasItsTexts) {
    Open();
    EXPECT_EQ(dialog->windowTitle(), "Settings");
    QStringList texts;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        texts << label->text();
    }
    EXPECT_TRUE(texts.contains(QStringLiteral("Number of digits after decimal to round numbers:")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Step-by-Step Detail:")));
    EXPECT_EQ(Check("Check2").text(), "Click Notification Enabled");
    EXPECT_EQ(Check("Check3").text(), "Complex Examples");
    EXPECT_EQ(dialog->findChild<QGroupBox*>()->title(), "Choose Assistant Wiz:");
    EXPECT_EQ(Find<QPushButton>(*dialog, QStringLiteral("Command1")).text(), "OK");
    EXPECT_EQ(Find<QPushButton>(*dialog, QStringLiteral("Command2")).text(), "Cancel");
    EXPECT_TRUE(Find<QPushButton>(*dialog, QStringLiteral("Command1")).isDefault());
    EXPECT_EQ(List("Combo1").count(), 5);
    EXPECT_EQ(List("Combo1").itemText(4), "5");
    EXPECT_EQ(List("Combo2").itemText(0), "High");
    EXPECT_EQ(List("Combo2").itemText(1), "Medium");
    EXPECT_EQ(List("Combo2").itemText(2), "Low");
}

TEST_F(Options, EveryControlHasANameAndAKey) {
    Open();
    for (const QWidget* control : dialog->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->isVisibleTo(dialog.get())) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            EXPECT_TRUE(!control->accessibleName().isEmpty() || button != nullptr)
                << control->objectName().toStdString();
        }
    }
    QStringList reached;
    for (int i = 0; i < 7; ++i) {
        reached << dialog->focusWidget()->objectName();
        PressKey(*dialog, Qt::Key_Tab);
    }
    EXPECT_EQ(reached.join(u' ').toStdString(),
              "Combo1 Combo2 Check2 Check3 wiz3 Command1 Command2");
}

TEST_F(Options, ShowsTheSettings) {
    settings = {.RoundDigits = 4,
                .DetailLevel = 1,
                .ExpDetail = 2,
                .ComplexEx = 2,
                .ClickNotify = false,
                .whichAssistant = 1};
    Open();
    EXPECT_EQ(List("Combo1").currentText(), "4");
    // By the explanation's detail alone, though the other does not go with it.
    EXPECT_EQ(List("Combo2").currentText(), "Medium");
    EXPECT_FALSE(Check("Check2").isChecked());
    EXPECT_TRUE(Check("Check3").isChecked());
    EXPECT_EQ(Framed(), 1);
}

TEST_F(Options, EnterStoresWhatIsShown) {
    Open();
    List("Combo1").setCurrentIndex(0);
    List("Combo2").setCurrentIndex(2);
    Click(Check("Check2"), QPoint(8, Check("Check2").height() / 2));
    Click(Check("Check3"), QPoint(8, Check("Check3").height() / 2));
    EXPECT_EQ(settings.RoundDigits, 2);
    PressKey(*dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(settings.RoundDigits, 1);
    EXPECT_EQ(settings.ExpDetail, 1);
    EXPECT_EQ(settings.DetailLevel, 3);
    EXPECT_FALSE(settings.ClickNotify);
    EXPECT_EQ(settings.ComplexEx, 2);
}

TEST_F(Options, HighNeverGoesWithAnotherDetail) {
    settings.DetailLevel = 3;
    Open();
    EXPECT_EQ(List("Combo2").currentText(), "High");
    PressKey(*dialog, Qt::Key_Return);
    EXPECT_EQ(settings.ExpDetail, 3);
    EXPECT_EQ(settings.DetailLevel, 1);
}

TEST_F(Options, EscStoresNothingButTheFigure) {
    Open();
    List("Combo1").setCurrentIndex(4);
    Check("Check2").setChecked(false);
    Click(Figure(2));
    EXPECT_EQ(settings.whichAssistant, 2);
    EXPECT_EQ(Framed(), 2);
    PressKey(*dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(settings.RoundDigits, 2);
    EXPECT_TRUE(settings.ClickNotify);
    EXPECT_EQ(settings.whichAssistant, 2);
}

TEST_F(Options, CancelIsEsc) {
    Open();
    List("Combo1").setCurrentIndex(4);
    PressButton(*dialog, QStringLiteral("Cancel"));
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(settings.RoundDigits, 2);
}

TEST_F(Options, ArrowKeysChooseAFigure) {
    Open();
    Figure(3).setFocus();
    PressKey(*dialog, Qt::Key_Left);
    EXPECT_EQ(settings.whichAssistant, 2);
    EXPECT_EQ(Framed(), 2);
    EXPECT_TRUE(Figure(2).hasFocus());
    PressKey(*dialog, Qt::Key_Left);
    EXPECT_EQ(settings.whichAssistant, 1);
    PressKey(*dialog, Qt::Key_Right);
    EXPECT_EQ(settings.whichAssistant, 2);
    PressKey(*dialog, Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(Options, NothingIsCutByALargeInterfaceFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(26);
    QApplication::setFont(large);
    Open();
    int seen = 0;
    for (const QWidget* control : dialog->findChildren<QWidget*>()) {
        if (qobject_cast<const QLabel*>(control) != nullptr ||
            qobject_cast<const QAbstractButton*>(control) != nullptr) {
            EXPECT_GE(control->width(), control->sizeHint().width());
            EXPECT_GE(control->height(), control->sizeHint().height());
            EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry()));
            ++seen;
        }
    }
    QApplication::setFont(usual);
    EXPECT_EQ(seen, 2 + 2 + 3 + 2);
}

TEST_F(Options, EachFigureHasAPictureAndAFrameWhenChosen) {
    Open();
    Check("Check2").setFocus();
    const QImage plain = Figure(1).grab().toImage();
    EXPECT_NE(plain, Figure(2).grab().toImage());
    Click(Figure(1));
    Check("Check2").setFocus();
    EXPECT_NE(Figure(1).grab().toImage(), plain);
    Click(Figure(3));
    Check("Check2").setFocus();
    EXPECT_EQ(Figure(1).grab().toImage(), plain);
}

}  // namespace
}  // namespace numerello
