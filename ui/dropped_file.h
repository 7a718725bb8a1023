#pragma once

#include <QDropEvent>
#include <string>

namespace numerello {

/// The first file of a drop, as a URL. Empty when there is none, or when a dialog stands over the
/// window that it is dropped on.
std::string DroppedFile(const QDropEvent& drop);

}  // namespace numerello
