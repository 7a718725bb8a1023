#pragma once

#include <QColor>
#include <QImage>
#include <QUrl>
#include <limits>
#include <map>
#include <string>

#include "help/topic_texts.h"
#include "ui/font_metrics.h"

namespace numerello {

/// Draws the pictures of the help pages when they are shown, so that they are sharp at every size:
///   math:INK/LINE   a piece of math text in the ink "page", "black" or "blue"
///   entry:PAGE      the entry form of a topic, filled in with its example
///   working:PAGE    the finished working of a topic's example in columns
///   number-line:PAGE   the number line that belongs to a topic's example
/// The baseline of a piece of mathematics lies in the middle of its picture or a little below,
/// where the text beside it has its own. For the thread of the window alone.
class HelpPictures {
  public:
    struct Look {
        qreal scale;       ///< device-independent pixels of a sheet pixel
        qreal pixelRatio;  ///< of the screen
        QColor pageInk;    ///< of the text on the page
        qreal sink = 0;    ///< how far below the middle the baseline has to be, likewise
        qreal room = std::numeric_limits<qreal>::max();  ///< no picture should be wider, likewise
    };

    /// Null for an address that names no picture.
    QImage Picture(const QUrl& address, const Look& look);

  private:
    const TopicText* TextOf(const QString& page);
    QImage Mathematics(const QString& address, const Look& look) const;
    QImage Entry(const TopicText& topic, const Look& look) const;
    QImage Working(const TopicText& topic, const Look& look) const;
    QImage NumberLine(const TopicText& topic, const Look& look) const;

    FontMetrics metrics{FontMetrics::Medium::Sheet};
    std::map<std::string, TopicText> texts;  ///< by the names of their pages
};

}  // namespace numerello
