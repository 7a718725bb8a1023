#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace numerello {

// The drawings that travel inside the program. The key of a drawing is the name of its file without
// the ending, such as "book1" or "toolbar/new"; a key without a drawing throws
// std::invalid_argument. Nothing is parsed before it is first shown, and what was painted once is
// kept. For the thread of the window alone, as long as the application object stands.

/// The drawing as large as fits into the size, in the middle of it, its shape kept; the ground is
/// transparent. The size is in device-independent pixels, each of which is devicePixelRatio pixels
/// wide and high.
QPixmap Artwork(const QString& key, QSize size, qreal devicePixelRatio);

/// The drawing as an icon that is sharp at every size; pale grey where it is disabled.
QIcon ArtworkIcon(const QString& key);

/// As above from the drawings of the toolbar, by the key of the button: "new" is "toolbar/new".
/// Under the pointer the picture is lifted a little and throws a shadow.
QIcon ToolbarIcon(const QString& key);

}  // namespace numerello
