#pragma once

#include <string_view>

#include "core/clock.h"
#include "core/problem.h"
#include "core/random_source.h"

/// Choosing a topic by its caption, with a chooser open or without one.
namespace numerello {

/// What choosing a topic knows of the chooser. A default one is closed.
struct ChooserState {
    bool loaded = false;
    bool stillOpen = false;  ///< nothing has been chosen since it opened
    bool arrowFlag = false;  ///< an arrow key led to the selected node: passing over, no choice
    int storedProblemType = 0;
    int storedInputMask = 0;

    /// Opens the chooser and stores what closing it without a choice brings back.
    void Load(const TopicChoice& topic);

    /// Closes the chooser. Without a choice the stored values come back and ChooserCancelled is
    /// set. Nothing happens to a closed one.
    void Unload(TopicChoice& topic);
};

/// Sets the topic from its caption, exact in every character; any other text, a folder's caption
/// included, sets code 0 and keeps the mask. A real choice also gets title and instruction and
/// closes the chooser; with the arrow flag set nothing is chosen yet.
void TreeViewSelect(std::string_view caption, TopicChoice& topic, ChooserState& chooser,
                    const Clock& clock, RandomSource& random);

/// As above, with no chooser open.
void TreeViewSelect(std::string_view caption, TopicChoice& topic, const Clock& clock,
                    RandomSource& random);

/// Sets the topic's values from a caption that is only selected: nothing is chosen.
void FollowSelection(std::string_view caption, TopicChoice& topic);

}  // namespace numerello
