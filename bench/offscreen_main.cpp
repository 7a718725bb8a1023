#include <benchmark/benchmark.h>

#include <QApplication>

#include "ui/font_metrics.h"

/// Windows are painted into memory: the time is the program's, not a screen's.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    if (!numerello::LoadSheetFont()) {
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
