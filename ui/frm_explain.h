#pragma once

#include <QLabel>
#include <QScrollArea>
#include <QWidget>

#include "core/learner.h"
#include "core/problem.h"
#include "ui/font_metrics.h"
#include "worksheet/explanation.h"

namespace numerello {

/// The assistant's explanation: a small window with nothing but a caption, which it draws itself.
/// Keys and focus stay with the sheet; a key or a click anywhere else closes it and still does what
/// it does there.
class FrmExplain : public QWidget {
    Q_OBJECT

  public:
    /// Problem and learner must outlive the window. It stands over the window of the form.
    FrmExplain(const Problem& problem, Learner& learner, QWidget* form);

    Explanation& Model() { return model; }

    /// Shows what is to be said now, for the sheet in use on this desk. `arrow` is what the window
    /// must not cover, on the screen; empty when no arrow waits.
    void Open(const Sheet& current, const QWidget& desk, const QRect& arrow);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FitText(const QRect& screen);
    bool IsMine(const QObject* object) const;
    bool FilterKey(const QObject* watched, QKeyEvent& key);
    void CloseUnlessHere(const QWindow* focused);

    FontMetrics metrics{FontMetrics::Medium::Explanation};
    Explanation model;
    QLabel* caption;
    QScrollArea* view;
};

/// Where a window may stand that is wanted at this place: whole on the screen, and below or above
/// the arrow if it would cover it and there is room. All are places of the screen.
QPoint PlaceOfExplanation(QRect wanted, const QRect& screen, const QRect& arrow);

}  // namespace numerello
