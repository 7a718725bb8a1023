#pragma once

#include "core/problem.h"
#include "core/settings_store.h"

namespace numerello {

/// The eleven values that outlive a run of the program; a fresh one holds the defaults.
struct Settings {
    AnswerSettings answers;
    bool mnuPencil = true;     ///< Use Pencil
    bool mnuHideWiz = true;    ///< Show Wiz Assistant
    bool mnuShowLight = true;  ///< Show Guided Input Light
};

/// Each value that is missing, or is none of its key's, is the default.
Settings ReadSettings(const SettingsStore& store);

void StoreSettings(const Settings& settings, SettingsStore& store);

}  // namespace numerello
