#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <memory>

#include "ui/artwork.h"
#include "ui/export_pdf.h"
#include "ui/font_metrics.h"
#include "ui/frm_logo.h"
#include "ui/frm_main.h"
#include "ui/motion.h"

namespace {

using numerello::FrmLogo;
using numerello::FrmMain;

/// The frame, then at once the question which topic. The chooser waits until the frame has the
/// focus: a desktop that is still placing the frame would give it the focus after the chooser.
void ShowFrame(FrmMain& frame) {
    constexpr std::chrono::milliseconds kLongest(500);
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &frame,
                     [&frame](const QWindow* window) {
                         if (window != nullptr && window == frame.windowHandle()) {
                             QTimer::singleShot(0, &frame, &FrmMain::AskForFirstTopic);
                         }
                     });
    QTimer::singleShot(kLongest, &frame, &FrmMain::AskForFirstTopic);
    frame.Open();
}

/// The frame is made behind the splash, which is on the screen first.
int RunWithSplash() {
    std::unique_ptr<FrmMain> frame;
    const auto makeFrame = [&frame] {
        if (!frame) {
            frame = std::make_unique<FrmMain>();
        }
    };
    FrmLogo logo;
    QObject::connect(&logo, &FrmLogo::Closed, [&] {
        makeFrame();
        ShowFrame(*frame);
    });
    logo.show();
    QTimer::singleShot(100, &logo, makeFrame);
    return QApplication::exec();
}

int RunWithoutSplash() {
    FrmMain frame;
    ShowFrame(frame);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    numerello::ReadyToExport(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Numerello"));
    QApplication::setOrganizationName(QStringLiteral("Vantrel"));
    QApplication::setApplicationVersion(QStringLiteral(NUMERELLO_VERSION));

    QCommandLineParser arguments;
    arguments.setApplicationDescription(QStringLiteral("A tutor for elementary mathematics"));
    arguments.addHelpOption();
    arguments.addVersionOption();
    const QCommandLineOption noSplash(QStringLiteral("no-splash"),
                                      QStringLiteral("Start without the splash."));
    arguments.addOption(noSplash);
    const QCommandLineOption exports(
        QStringLiteral("export"),
        QStringLiteral("Write the worked solution of a problem file to a PDF file, and end."),
        QStringLiteral("FILE.pdf"));
    arguments.addOption(exports);
    arguments.process(app);

    if (!numerello::LoadSheetFont()) {
        qCritical("The font of the sheets cannot be loaded.");
        return 1;
    }
    if (arguments.isSet(exports)) {
        return numerello::ExportPdf(arguments.value(exports), arguments.positionalArguments());
    }
    numerello::WatchDesktopMotion();
    QApplication::setWindowIcon(numerello::ArtworkIcon(QStringLiteral("icon")));
    return arguments.isSet(noSplash) ? RunWithoutSplash() : RunWithSplash();
}
