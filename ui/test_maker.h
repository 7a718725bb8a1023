#pragma once

#include "core/clock.h"
#include "core/problem.h"
#include "ui/previewed.h"

namespace numerello {

/// Makes practice tests up, their problems a second apart from the moment on, and works their keys
/// as the settings say. Both must outlive the maker and its tests.
TestMaker MakerOfTests(const Clock& clock, const AnswerSettings& settings);

}  // namespace numerello
