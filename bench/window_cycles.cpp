#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "core/settings_store.h"
#include "ui/font_metrics.h"
#include "ui/frm_main.h"

/// Opens the frame, works a problem of a file in it and closes it, 200 times, and prints what the
/// program weighs meanwhile.
namespace {

using namespace numerello;

constexpr int kCycles = 200;
constexpr int kTellEvery = 20;

double ResidentMiB() {
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

void Cycle(const std::string& folder, const std::string& file) {
    MemorySettingsStore store;
    FrmMain frame(store, folder, file);
    frame.Open();
    frame.Begin();
    QCoreApplication::processEvents();
    frame.grab();
    frame.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("line.nrl")).toStdString();
    std::ofstream(file) << "Graphing A Line Using Two Points BB (1,2)-(5,6) BB  BB  BB  BB  BB  BB "
                           " BB -1 BB -1 BB 0 BB 106\n";
    if (!LoadSheetFont()) {
        return 1;
    }
    for (int cycle = 0; cycle <= kCycles; ++cycle) {
        if (cycle % kTellEvery == 0) {
            std::printf("%4d  %.1f MiB\n", cycle, ResidentMiB());
        }
        Cycle(folder.path().toStdString(), file);
    }
    return 0;
}
