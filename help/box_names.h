#pragma once

#include <string>

#include "catalogue/entry_layouts.h"
#include "core/text.h"

namespace numerello {

/// What a page calls a box: its label without the sign that joins the two.
inline std::string BoxName(const EntryBoxLayout& box) {
    return Replace(box.name, "=", "");
}

}  // namespace numerello
