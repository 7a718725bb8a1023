#pragma once

#include <QApplication>
#include <QFont>

namespace numerello {

/// As long as it lives, the interface font of every window has this size.
class [[nodiscard]] InterfaceFont {
  public:
    explicit InterfaceFont(int points) : usual(QApplication::font()) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~InterfaceFont() { QApplication::setFont(usual); }

    InterfaceFont(const InterfaceFont&) = delete;
    InterfaceFont& operator=(const InterfaceFont&) = delete;

  private:
    QFont usual;
};

}  // namespace numerello
