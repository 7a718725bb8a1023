#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/application.h"
#include "ui/artwork.h"
#include "ui/export_pdf.h"
#include "ui/font_metrics.h"
#include "ui/frm_logo.h"
#include "ui/frm_main.h"
#include "ui/motion.h"
#include "ui/settings_file.h"

namespace {

using numerello::FrmLogo;
using numerello::FrmMain;

struct Arguments {
    bool splash = true;
    std::string StartFile;       ///< what is no option, joined by blanks
    QStringList positional;      ///< the same, each for itself
    std::optional<QString> pdf;  ///< file to export to; none for the window
};

/// Prints what --help and --version ask for and ends the program; so it does for unknown options.
Arguments Parse(const QCoreApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A tutor for elementary mathematics"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption noSplash(QStringLiteral("no-splash"),
                                      QStringLiteral("Start without the splash."));
    parser.addOption(noSplash);
    const QCommandLineOption exports(
        QStringLiteral("export"),
        QStringLiteral("Write the worked solution of a problem file to a PDF file, and end."),
        QStringLiteral("FILE.pdf"));
    parser.addOption(exports);
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("A problem file to open."),
                                 QStringLiteral("[file]"));
    parser.process(app);
    const QString file = parser.positionalArguments().join(u' ').trimmed();
    return {!parser.isSet(noSplash) && file.isEmpty(), file.toStdString(),
            parser.positionalArguments(),
            parser.isSet(exports) ? std::optional(parser.value(exports)) : std::nullopt};
}

/// Whether the answer is a text for the terminal, which needs no screen.
bool AsksForText(int argc, char** argv) {
    constexpr auto kQuestions =
        std::to_array<std::string_view>({"-h", "--help", "--help-all", "-v", "--version"});
    char** const end = std::find(argv, argv + argc, std::string_view("--"));
    return std::any_of(argv + 1, std::max(argv + 1, end), [&](std::string_view argument) {
        return std::find(std::begin(kQuestions), std::end(kQuestions), argument) !=
               std::end(kQuestions);
    });
}

/// Shows the frame, which begins its work once it has the focus: a desktop that is still placing it
/// would else give it the focus after its first dialog.
void ShowFrame(FrmMain& frame) {
    constexpr std::chrono::milliseconds kLongest(500);
    QObject::connect(&frame, &FrmMain::Closed, qApp, [] { QCoreApplication::exit(); });
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &frame,
                     [&frame](const QWindow* window) {
                         if (window != nullptr && window == frame.windowHandle()) {
                             QTimer::singleShot(0, &frame, &FrmMain::Begin);
                         }
                     });
    QTimer::singleShot(kLongest, &frame, &FrmMain::Begin);
    frame.Open();
}

std::unique_ptr<FrmMain> MakeFrame(numerello::SettingsStore& store, const std::string& StartFile) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return std::make_unique<FrmMain>(store, documents.toStdString(), StartFile);
}

/// The frame is made behind the splash, which is on the screen first.
int RunWithSplash(numerello::SettingsStore& store) {
    std::unique_ptr<FrmMain> frame;
    const auto makeFrame = [&] {
        if (!frame) {
            frame = MakeFrame(store, {});
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

int RunWithoutSplash(numerello::SettingsStore& store, const std::string& StartFile) {
    const std::unique_ptr<FrmMain> frame = MakeFrame(store, StartFile);
    ShowFrame(*frame);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("Numerello"));
    QCoreApplication::setOrganizationName(QStringLiteral("Vantrel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NUMERELLO_VERSION));
    if (AsksForText(argc, argv)) {
        const QCoreApplication app(argc, argv);
        Parse(app);
    }
    numerello::PrepareExport(argc, argv);

    const numerello::Application app(argc, argv);
    const Arguments arguments = Parse(app);
    if (!numerello::LoadSheetFont()) {
        qCritical("The font of the sheets cannot be loaded.");
        return 1;
    }
    if (arguments.pdf) {
        return numerello::ExportPdf(*arguments.pdf, arguments.positional);
    }
    QGuiApplication::setDesktopFileName(QStringLiteral("com.example.numerello"));
    numerello::WatchDesktopMotion();
    QApplication::setWindowIcon(numerello::ArtworkIcon(QStringLiteral("icon")));
    numerello::SettingsFile store(numerello::SettingsFile::UsualPath());
    return arguments.splash ? RunWithSplash(store) : RunWithoutSplash(store, arguments.StartFile);
}
