#include "typeset/sample.h"

#include <deque>
#include <limits>
#include <utility>

#include "core/failure.h"
#include "core/learner.h"
#include "core/problem.h"
#include "typeset/lines.h"
#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr std::size_t kPaperSheets = 10;
constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

/// Sheets that are made when they are turned to.
class SampleSheets : public PaperSheets {
  public:
    SampleSheets(const TextMetrics& metrics, Font font, std::size_t limit)
        : metrics(metrics), font(std::move(font)), limit(limit) {
        surfaces.emplace_back(metrics, this->font);
    }

    Surface& Current() override { return surfaces.back(); }

    void Turn() override {
        if (surfaces.size() == limit) {
            throw Failure(FailureKind::Format);
        }
        surfaces.emplace_back(metrics, font);
    }

    void PlaceBlinker() override {}

    const std::deque<Surface>& Surfaces() const { return surfaces; }

  private:
    const TextMetrics& metrics;
    Font font;
    std::size_t limit;
    std::deque<Surface> surfaces;
};

class MessageRecorder : public Learner {
  public:
    explicit MessageRecorder(std::vector<SampleAnswer::Message>& messages) : messages(messages) {}

    void MessageBox(std::string_view title, std::string_view text) override {
        messages.push_back({std::string(title), std::string(text)});
    }
    bool Confirm(std::string_view /*title*/, std::string_view /*text*/) override { return false; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override { return {}; }

  private:
    std::vector<SampleAnswer::Message>& messages;
};

const TypesetVariant& VariantOf(TypesetTarget target) {
    switch (target) {
        case TypesetTarget::Paper:
            return kPaperVariant;
        case TypesetTarget::Explanation:
            return kExplanationVariant;
        case TypesetTarget::Print:
            return kPrintVariant;
        case TypesetTarget::Preview:
            break;
    }
    return kPreviewVariant;
}

void DrawSample(const SampleRequest& request, SampleSheets& sheets, SampleAnswer& answer) {
    MessageRecorder recorder(answer.messages);
    switch (request.target) {
        case TypesetTarget::Paper: {
            Playback playback;
            FPrintLine(request.text, false, sheets, playback, recorder);
            answer.endX = playback.LineEndX;
            answer.endY = playback.LineEndY;
            return;
        }
        case TypesetTarget::Explanation:
            ExplainLine(request.text, sheets.Current(), recorder);
            break;
        case TypesetTarget::Print:
            PrintLine(request.text, sheets.Current(), request.blue, recorder);
            break;
        case TypesetTarget::Preview:
            PreviewLine(request.text, sheets, request.blue, recorder);
            break;
    }
    answer.endX = sheets.Current().CurrentX;
    answer.endY = sheets.Current().CurrentY;
}

}  // namespace

std::optional<TypesetTarget> FindTypesetTarget(std::string_view name) {
    if (name == "paper") {
        return TypesetTarget::Paper;
    }
    if (name == "explain") {
        return TypesetTarget::Explanation;
    }
    if (name == "print") {
        return TypesetTarget::Print;
    }
    if (name == "preview") {
        return TypesetTarget::Preview;
    }
    return std::nullopt;
}

SampleAnswer TypesetSample(const SampleRequest& request, const TextMetrics& metrics) {
    const TypesetVariant& variant = VariantOf(request.target);
    const Font font{std::string(variant.face), request.size.value_or(variant.fontSize)};
    const bool onPaper = request.target == TypesetTarget::Paper;
    SampleSheets sheets(metrics, font, onPaper ? kPaperSheets : kAnyNumber);
    sheets.Current().CurrentX = request.x;
    sheets.Current().CurrentY = request.y;

    SampleAnswer answer;
    DrawSample(request, sheets, answer);
    int page = 0;
    for (const Surface& surface : sheets.Surfaces()) {
        for (int i = 0; i < surface.PageCount(); ++i, ++page) {
            for (const Mark& mark : surface.PageMarks(i)) {
                answer.marks.push_back({page, mark});
            }
        }
    }
    answer.pagesTurned = page - 1;
    return answer;
}

}  // namespace numerello
