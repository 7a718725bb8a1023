#pragma once

#include <QScrollArea>
#include <QTimer>

#include "core/clock.h"
#include "core/problem.h"
#include "ui/entry_form.h"
#include "ui/font_metrics.h"
#include "ui/frm_explain.h"
#include "ui/light_button.h"
#include "ui/sheet_pile.h"
#include "ui/window_learner.h"
#include "ui/window_worksheet.h"
#include "ui/wizard_figure.h"
#include "ui/writing_pencil.h"

namespace numerello {

/// The entry form: the desk with its sheets, the typing line or the boxes of the topic, and the
/// played solution. Made anew for every topic.
class FrmPaper : public QScrollArea {
    Q_OBJECT

  public:
    /// The problem, its topic already chosen, and the learner must outlive the form.
    FrmPaper(Problem& problem, WindowLearner& learner, QWidget* parent);

    void compute_Click();
    void clear_Click();
    /// Makes up a problem of the topic, enters it and solves it.
    void example_Click(const Clock& clock);

    /// A key of the typing line: a character or a Backspace.
    void Form_KeyPress(std::string_view key);

    /// Boxes and lists were filled by something else than the learner.
    void ShowEntry();

    /// Whether the typing line is open for keys.
    bool TakesKeys() const;

    /// Where the last line stands on the screen, with what marks its end, as far as it is in view.
    QRect LastLine() const;

    /// Shows the next line, as a click on the arrow does.
    void NextStep();

    void mnuShowStep_Click(bool ticked);
    /// Tells what the shown step was about; nothing where it has no note.
    void mnuExp_Click();

    /// The Wiz grows in or shrinks out.
    void ShowWiz(bool shown);
    /// The settings may have chosen another figure, or turned its notice on or off.
    void WizSettingsChanged();
    void ShowLight(bool shown);
    void UsePencil(bool used);

  signals:
    /// Which commands are open may have changed.
    void Changed();

    /// The drawing that the problem asks for is to be shown.
    void GraphAsked();
    /// The drawing of the last problem is to be put away.
    void GraphDone();

    /// The right button asks for a pop-up, at this place of the screen.
    void PencilMenuAsked(QPoint place);
    void LightMenuAsked(QPoint place);
    void WizMenuAsked(QPoint place);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void MakeDesk();
    void MakeEntry();
    void MakeLight();
    void MakeWizard();
    void TypeText(const QString& text);
    void TypeKey(std::string_view key);
    void Refresh();
    void ShowStep();
    void ShowSheets();
    void FollowSheets();
    void ReleaseSheet(int index);
    void RaiseNeighbour(int direction);
    void OpenExplanation();
    void ShowErased();
    ArrowButton& CurrentArrow();
    void FitDesk();
    void PlaceFigures();
    QPoint Scrolled() const;
    void ScrollToLineEnd();
    void KeepTimer();
    QString Reason() const;

    Problem& problem;
    WindowLearner& learner;
    FontMetrics metrics{FontMetrics::Medium::Sheet};
    WindowWorksheet worksheet;
    QWidget* desk;
    SheetPile* pile = nullptr;
    WritingPencil* pencil = nullptr;
    LightButton* light = nullptr;
    WizardFigure* wizard = nullptr;
    FrmExplain* explanation = nullptr;
    EntryForm* entry = nullptr;
    QTimer timer2{this};
    bool onScreen = false;
};

}  // namespace numerello
