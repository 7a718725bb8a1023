#pragma once

#include <QTextBrowser>
#include <QTimer>
#include <optional>

#include "ui/help_pictures.h"

namespace numerello {

/// Shows the pages that travel inside the program, by addresses such as "help:rounding". Follows
/// the platform's font and palette; paper stays paper.
class HelpView : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpView(QWidget* parent = nullptr);

    /// Whether there is such a page; an unknown one is not shown.
    bool ShowPage(const QString& name);

    /// The name of the page on show.
    QString Page() const { return page; }

    /// Makes all larger by so many steps, or smaller, as far as there are any. Keeps the place on
    /// the page.
    void StepZoom(int steps);
    void ZoomAsUsual();
    bool CanZoomIn() const;
    bool CanZoomOut() const;

    /// In percent of the platform's interface font.
    int Zoom() const;

    /// Marks the words that begin with one of these, without regard to case.
    void MarkWords(const QStringList& beginnings);

    /// The page in words, pictures included, as it is read aloud.
    QString Spoken() const;

  signals:
    /// Another page is on show, or the same one once more.
    void PageShown();

    /// The example of that page is to be put on the sheet.
    void ExampleAsked(const QString& name);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SetZoom(int step);
    void TakePage(const QUrl& address);
    void Restyle();
    double Room() const;
    void ShowMarks();

    HelpPictures pictures;
    double picturesRoom = 0;  ///< that the pictures on show were drawn for
    QTimer redraw;
    bool drawnAnew = false;  ///< the same page at another size
    QString page;
    int zoomStep;  ///< in the table of sizes
    QStringList marked;
    mutable std::optional<QString> spoken;  ///< none after a change of the page
};

/// Makes the help readable for assistive technology.
void TellHelp();

}  // namespace numerello
