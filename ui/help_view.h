#pragma once

#include <QTextBrowser>

#include "ui/help_pictures.h"

namespace numerello {

/// Shows the pages that travel inside the program, by addresses such as "help:rounding". Follows
/// the platform's font and palette; paper stays paper.
class HelpView : public QTextBrowser {
    Q_OBJECT

  public:
    static constexpr int kUsualZoom = 100;

    explicit HelpView(QWidget* parent = nullptr);

    /// Whether there is such a page; an unknown one is not shown.
    bool ShowPage(const QString& name);

    /// The name of the page on show.
    QString Page() const { return page; }

    /// In percent of the platform's interface font. Keeps the place on the page.
    void SetZoom(int percent);
    int Zoom() const { return zoom; }

    /// Marks the words that begin with one of these, without regard to case.
    void MarkWords(const QStringList& beginnings);

    /// The page in words, pictures included, as it is read aloud.
    QString Spoken() const;

  signals:
    /// Another page is on show, or the same one once more.
    void PageShown();

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;

  private:
    void TakePage(const QUrl& address);
    void Restyle();
    void ShowMarks();

    HelpPictures pictures;
    QString page;
    int zoom = kUsualZoom;
    QStringList marked;
};

/// Makes the help readable for assistive technology.
void TellHelp();

}  // namespace numerello
