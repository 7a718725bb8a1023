#pragma once

#include <QWidget>

#include "ui/previewed.h"

namespace numerello {

/// One page of a preview, white whatever the desktop's colours are.
class PreviewPicture : public QWidget {
  public:
    PreviewPicture(int index, ShownPage page, const PrintScale& scale, double zoom,
                   const FontMetrics& faces, QWidget* parent);

    /// The size at which 8 points are 8 points.
    QSizeF NaturalSize() const;

    void SetWidth(int width);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ShownPage page;
    PrintScale scale;
    double zoom;
    const FontMetrics& faces;
};

}  // namespace numerello
