#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "typeset/sample.h"

/// Any text as a line: it is drawn, or it is told that it cannot be. The first byte picks target,
/// colour and the place of the pen.
namespace {

using namespace numerello;

void Expect(bool right, const char* wrong, const std::string& text) {
    if (!right) {
        std::fprintf(stderr, "%s: %s\n", wrong, text.c_str());
        std::abort();
    }
}

bool IsPlaced(const Mark& mark) {
    if (const auto* text = std::get_if<TextMark>(&mark)) {
        return std::isfinite(text->x) && std::isfinite(text->y) && text->font.size > 0 &&
               text->text.find_first_not_of(' ') != std::string::npos;
    }
    if (const auto* stroke = std::get_if<StrokeMark>(&mark)) {
        return std::isfinite(stroke->x1) && std::isfinite(stroke->y1) &&
               std::isfinite(stroke->x2) && std::isfinite(stroke->y2);
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size < 1) {
        return 0;
    }
    SampleRequest request;
    request.target = static_cast<TypesetTarget>(data[0] % 4);
    request.blue = data[0] / 4 % 2 == 1;
    request.x = data[0] / 8 * 25;
    request.y = data[0] / 8 * 20;
    request.text.assign(reinterpret_cast<const char*>(data) + 1, size - 1);
    const SampleAnswer answer = TypesetSample(request, PlainMetrics());
    Expect(std::isfinite(answer.endX) && std::isfinite(answer.endY), "it ends nowhere",
           request.text);
    // Drawing goes on behind what could not be drawn, so a line may be told of more than once.
    Expect(answer.messages.size() <= size, "it is told without end", request.text);
    for (const auto& [title, text] : answer.messages) {
        Expect(title.empty() && text == "An error occurred while displaying information.",
               "something else is told", request.text);
    }
    int page = 0;
    for (const auto& [markPage, mark] : answer.marks) {
        Expect(markPage >= page && markPage <= answer.pagesTurned, "a mark is on no page",
               request.text);
        Expect(IsPlaced(mark), "a mark is nowhere", request.text);
        page = markPage;
    }
    return 0;
}
