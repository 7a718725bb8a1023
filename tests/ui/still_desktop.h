#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyle>

namespace numerello {

class StillStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// A desktop that asks for no motion.
class StillDesktop {
  public:
    StillDesktop() { QApplication::setStyle(new StillStyle); }
    ~StillDesktop() { QApplication::setStyle(usual); }

    StillDesktop(const StillDesktop&) = delete;
    StillDesktop& operator=(const StillDesktop&) = delete;

  private:
    QString usual = QApplication::style()->name();
};

}  // namespace numerello
