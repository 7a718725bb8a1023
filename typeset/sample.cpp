#include "typeset/sample.h"

#include <algorithm>
#include <array>
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

using DrawSample = void (*)(const SampleRequest&, SampleSheets&, SampleAnswer&, Learner&);

void DrawOnPaper(const SampleRequest& request, SampleSheets& sheets, SampleAnswer& answer,
                 Learner& learner) {
    Playback playback;
    FPrintLine(request.text, false, sheets, playback, learner);
    answer.endX = playback.LineEndX;
    answer.endY = playback.LineEndY;
}

void TakePen(const SampleSheets& sheets, SampleAnswer& answer) {
    answer.endX = sheets.Surfaces().back().CurrentX;
    answer.endY = sheets.Surfaces().back().CurrentY;
}

void DrawExplanation(const SampleRequest& request, SampleSheets& sheets, SampleAnswer& answer,
                     Learner& learner) {
    ExplainLine(request.text, sheets.Current(), learner);
    TakePen(sheets, answer);
}

void DrawPrint(const SampleRequest& request, SampleSheets& sheets, SampleAnswer& answer,
               Learner& learner) {
    PrintLine(request.text, sheets.Current(), request.blue, learner);
    TakePen(sheets, answer);
}

void DrawPreview(const SampleRequest& request, SampleSheets& sheets, SampleAnswer& answer,
                 Learner& learner) {
    PreviewLine(request.text, sheets, request.blue, learner);
    TakePen(sheets, answer);
}

struct Target {
    TypesetTarget target;
    std::string_view name;
    const TypesetVariant* variant;
    std::size_t mostSheets;
    DrawSample draw;
};

constexpr std::array kTargets{
    Target{TypesetTarget::Paper, "paper", &kPaperVariant, PaperSheets::kCount, DrawOnPaper},
    Target{TypesetTarget::Explanation, "explain", &kExplanationVariant, kAnyNumber,
           DrawExplanation},
    Target{TypesetTarget::Print, "print", &kPrintVariant, kAnyNumber, DrawPrint},
    Target{TypesetTarget::Preview, "preview", &kPreviewVariant, kAnyNumber, DrawPreview},
};

const Target& RowOf(TypesetTarget target) {
    return *std::find_if(kTargets.begin(), kTargets.end(),
                         [target](const Target& row) { return row.target == target; });
}

}  // namespace

std::optional<TypesetTarget> FindTypesetTarget(std::string_view name) {
    const auto* const row = std::find_if(kTargets.begin(), kTargets.end(),
                                         [name](const Target& each) { return each.name == name; });
    return row == kTargets.end() ? std::nullopt : std::optional(row->target);
}

SampleAnswer TypesetSample(const SampleRequest& request, const TextMetrics& metrics) {
    const Target& target = RowOf(request.target);
    const Font font{std::string(target.variant->face),
                    request.size.value_or(target.variant->fontSize)};
    SampleSheets sheets(metrics, font, target.mostSheets);
    sheets.Current().CurrentX = request.x;
    sheets.Current().CurrentY = request.y;

    SampleAnswer answer;
    MessageRecorder recorder(answer.messages);
    target.draw(request, sheets, answer, recorder);
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
