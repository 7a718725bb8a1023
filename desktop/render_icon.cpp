#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

/// render_icon DRAWING.svg SIZE OUTPUT.png: the drawing as an icon of so many pixels a side.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const int size = arguments.value(2).toInt();
    if (arguments.size() != 4 || size <= 0) {
        qCritical("usage: render_icon DRAWING.svg SIZE OUTPUT.png");
        return 2;
    }
    QSvgRenderer drawing(arguments[1]);
    if (!drawing.isValid()) {
        qCritical("the drawing cannot be read");
        return 1;
    }
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    drawing.render(&painter);
    painter.end();
    if (!icon.save(arguments[3])) {
        qCritical("the icon cannot be written");
        return 1;
    }
    return 0;
}
