#include "ui/dropped_file.h"

#include <QApplication>
#include <QMimeData>
#include <QUrl>

namespace numerello {

std::string DroppedFile(const QDropEvent& drop) {
    if (QApplication::activeModalWidget() != nullptr) {
        return {};
    }
    for (const QUrl& url : drop.mimeData()->urls()) {
        if (url.isLocalFile()) {
            return url.toEncoded().toStdString();
        }
    }
    return {};
}

}  // namespace numerello
