#include <benchmark/benchmark.h>

#include "core/problem.h"
#include "core/silent_learner.h"
#include "typeset/lines.h"

namespace numerello {
namespace {

constexpr std::string_view kSixtyCharacters =
    "x^2^+#1/256#=~b^2^-4~+3x-12(y+7)=[25]+4y-6z+81-19+2x-3y=1000";
static_assert(kSixtyCharacters.size() == 60);

class OneSheet : public PaperSheets {
  public:
    explicit OneSheet(Surface& surface) : surface(surface) {}

    Surface& Current() override { return surface; }
    void Turn() override { surface.Cls(); }
    void PlaceBlinker() override {}

  private:
    Surface& surface;
};

void ALineOfSixtyCharacters(benchmark::State& state) {
    const PlainMetrics metrics;
    Surface surface(metrics, {std::string(kSheetFace), 12});
    OneSheet sheet(surface);
    Playback playback;
    SilentLearner learner;
    for (auto _ : state) {
        surface.Cls();
        FPrintLine(kSixtyCharacters, false, sheet, playback, learner);
        benchmark::DoNotOptimize(playback.LineEndX);
    }
}
BENCHMARK(ALineOfSixtyCharacters);

}  // namespace
}  // namespace numerello
