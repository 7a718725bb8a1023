#pragma once

#include <QUrl>

/// The maker's pages. The program itself never reads them.
namespace numerello {

inline QUrl WebPage(const QString& path) {
    return {QStringLiteral("https://vantrel.example") + path};
}

inline QUrl HomePage() {
    return WebPage(QStringLiteral("/"));
}

inline QUrl ProductPage() {
    return WebPage(QStringLiteral("/numerello.htm"));
}

inline QUrl SupportPage() {
    return WebPage(QStringLiteral("/contact.htm"));
}

}  // namespace numerello
