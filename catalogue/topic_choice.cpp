#include "catalogue/topic_choice.h"

#include "catalogue/instructions.h"
#include "catalogue/topics.h"

namespace numerello {

namespace {

constexpr int kDefaultDigits = 5;

void SetTopicValues(std::string_view caption, TopicChoice& topic) {
    topic.MaxDigits = kDefaultDigits;
    topic.MaxVariables = 0;

    const Topic* known = FindTopic(caption);
    if (known == nullptr) {
        topic.ProblemType = 0;
        return;
    }
    topic.ProblemType = known->code;
    if (known->mask != kUnchanged) {
        topic.InputMask = BinaryFlagValue(known->mask);
    }
    topic.MaxDigits = known->digits;
    topic.MaxVariables = known->variables;
    if (known->linearGraph) {
        topic.LinearGraphTopic = 1;
    }
}

}  // namespace

void ChooserState::Load(const TopicChoice& topic) {
    loaded = true;
    stillOpen = true;
    arrowFlag = false;
    storedProblemType = topic.ProblemType;
    storedInputMask = topic.InputMask;
}

void ChooserState::Unload(TopicChoice& topic) {
    if (loaded && stillOpen) {
        topic.ProblemType = storedProblemType;
        topic.InputMask = storedInputMask;
        topic.ChooserCancelled = true;
    }
    *this = ChooserState();
}

void TreeViewSelect(std::string_view caption, TopicChoice& topic, ChooserState& chooser,
                    const Clock& clock, RandomSource& random) {
    SetTopicValues(caption, topic);

    if (topic.ProblemType != 0 && !chooser.arrowFlag) {
        topic.InstructionText = DrawInstruction(topic.ProblemType, clock, random);
        topic.TopicTitle = caption;
        chooser.stillOpen = false;
        chooser.Unload(topic);
    }

    topic.LastProblemType = topic.ProblemType;
}

void TreeViewSelect(std::string_view caption, TopicChoice& topic, const Clock& clock,
                    RandomSource& random) {
    ChooserState noChooser;
    TreeViewSelect(caption, topic, noChooser, clock, random);
}

void FollowSelection(std::string_view caption, TopicChoice& topic) {
    SetTopicValues(caption, topic);
    topic.LastProblemType = topic.ProblemType;
}

}  // namespace numerello
