#pragma once

#include <QAction>
#include <QMap>
#include <stdexcept>

#include "core/text.h"

namespace numerello {

/// The action of that name. Throws std::invalid_argument where there is none: a name in a table
/// that is spelled otherwise than in the code.
inline QAction& NamedAction(const QMap<QString, QAction*>& actions, const char* name) {
    QAction* action = actions.value(QLatin1String(name));
    if (action == nullptr) {
        throw std::invalid_argument(Text("there is no command ", name));
    }
    return *action;
}

}  // namespace numerello
