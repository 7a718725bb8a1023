#pragma once

namespace numerello {

/// From now on a sheet is a document to assistive technology, whose text is what stands on it, in
/// words. Calling it again does no harm.
void TellSheets();

}  // namespace numerello
