#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QTemporaryDir>

#include "core/settings_store.h"
#include "tests/ui/window.h"
#include "ui/font_metrics.h"
#include "ui/frm_explain.h"
#include "ui/frm_main.h"
#include "ui/light_button.h"
#include "ui/sheet_widget.h"

namespace numerello {

/// The frame on the screen, as a learner has it before the first topic.
class Window : public testing::Test {
  protected:
    Window() {
        LoadSheetFont();
        ShowActive(frame);
    }

    std::string Documents() const { return documents.path().toStdString(); }

    QAction& Command(const char* name) { return Find<QAction>(frame, QString::fromUtf8(name)); }

    /// Chooses a topic through New Problem and the index.
    void Choose(const QString& caption) {
        const WhenDialogOpens chooser(QStringLiteral("frmSelect"), [&caption](QWidget& dialog) {
            PressKey(dialog, Qt::Key_Tab, Qt::ControlModifier);
            TypeText(dialog, caption);
            PressKey(dialog, Qt::Key_Return);
        });
        Command("mnuNew").trigger();
        // The desktop would bring the frame back; without one it has to be asked for.
        ShowActive(frame);
    }

    /// A topic whose problem is a whole number: 3 feet are a yard.
    void ChooseFeet() { Choose(QStringLiteral("Converting Feet To Yards")); }

    void CancelNew() {
        const WhenDialogOpens chooser(QStringLiteral("frmSelect"),
                                      [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); });
        Command("mnuNew").trigger();
    }

    void Erase() {
        const WhenDialogOpens question(QStringLiteral("MessageBox"), [](QWidget& dialog) {
            PressButton(dialog, QStringLiteral("OK"));
        });
        Command("mnuErase").trigger();
        ShowActive(frame);
    }

    void Type(const QString& keys) { TypeText(frame, keys); }
    void Enter() { PressKey(frame, Qt::Key_Return); }

    SheetWidget& Sheet() { return Find<SheetWidget>(frame, QStringLiteral("Paper0")); }
    ArrowButton& Arrow() { return Find<ArrowButton>(frame, QStringLiteral("blinker0")); }
    LightButton& Light() { return Find<LightButton>(frame, QStringLiteral("Light")); }
    FrmExplain& Explanation() { return Find<FrmExplain>(frame, QStringLiteral("frmExplain")); }
    QMenu& PopUp(const char* name) { return Find<QMenu>(frame, QLatin1String(name)); }
    /// What stands on the sheets, as it is read aloud.
    QString SheetText() {
        QStringList sheets;
        for (int i = 0; i < Worksheet::kSheetCount; ++i) {
            sheets << Find<SheetWidget>(frame, QStringLiteral("Paper%1").arg(i)).Spoken();
        }
        sheets.removeAll(QString());
        return sheets.join(u'\n');
    }

    /// What an ear is told about the sheet.
    QString Reason() {
        return Find<QWidget>(frame, QStringLiteral("frmPaper")).accessibleDescription();
    }

    const Problem& Now() { return frame.CurrentProblem(); }

    MemorySettingsStore store;
    QTemporaryDir documents;
    FrmMain frame{store, Documents()};
};

}  // namespace numerello
