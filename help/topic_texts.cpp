#include "help/topic_texts.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "help/file_lines.h"
#include "help/help_error.h"

namespace numerello {

namespace {

/// "box 2" is place 1 of `count`; nothing else than a name, a blank and a digit will do.
std::size_t PlaceOf(std::string_view key, std::string_view name, std::size_t count) {
    const std::size_t digit = name.size() + 1;
    const bool isPlace = key.size() == digit + 1 && key.starts_with(name) && key[digit] > '0' &&
                         static_cast<std::size_t>(key[digit] - '0') <= count;
    return isPlace ? static_cast<std::size_t>(key[digit] - '1') : count;
}

void Store(TopicText& topic, std::string_view key, std::string_view value) {
    EntryBoxes& boxes = topic.boxes;
    const std::size_t box = PlaceOf(key, "box", boxes.Text.size());
    const std::size_t list = PlaceOf(key, "list", boxes.ListIndex.size());
    if (key == "about") {
        topic.about = value;
    } else if (key == "problem") {
        topic.problem = value;
    } else if (key == "answer") {
        topic.answers.emplace_back(value);
    } else if (box < boxes.Text.size()) {
        boxes.Text[box] = value;
    } else if (list < boxes.ListIndex.size() && value.size() == 1 && IsDigit(value)) {
        boxes.ListIndex[list] = value.front() - '0';
    } else {
        throw HelpError(Text("\"", topic.caption, "\" has a line that nobody reads: ", key));
    }
}

/// Lines one after the other, those that go on with the one before put to it.
class Reader {
  public:
    void Take(std::string_view line) {
        if (line.starts_with('#')) {
            return;
        }
        if (line.starts_with(' ') && !value.empty()) {
            value += Text(" ", Trimmed(line));
            return;
        }
        Finish();
        if (Trimmed(line).empty()) {
            inTopic = false;
        } else if (!inTopic) {
            topics.emplace_back().caption = Trimmed(line);
            inTopic = true;
        } else {
            const std::size_t colon = line.find(':');
            key = line.substr(0, colon);
            value = colon == std::string_view::npos ? "" : Trimmed(line.substr(colon + 1));
        }
    }

    std::vector<TopicText> Topics() {
        Finish();
        return std::move(topics);
    }

  private:
    void Finish() {
        if (!key.empty()) {
            Store(topics.back(), key, value);
        }
        key.clear();
        value.clear();
    }

    std::vector<TopicText> topics;
    bool inTopic = false;
    std::string key;
    std::string value;
};

}  // namespace

std::vector<TopicText> ReadTopicTexts(std::string_view file) {
    Reader reader;
    for (const std::string_view line : LinesOf(file)) {
        reader.Take(line);
    }
    return reader.Topics();
}

}  // namespace numerello
