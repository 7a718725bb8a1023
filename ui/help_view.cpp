#include "ui/help_view.h"

#include <QFile>
#include <QFontInfo>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "help/topic_page.h"
#include "typeset/surface.h"
#include "ui/colors.h"
#include "ui/text.h"

namespace numerello {

namespace {

constexpr double kMargin = 16;
/// Pages are read, not glanced at: they are a little larger than the interface font.
constexpr double kReadingSize = 1.15;
/// Letters of the sheet are a quarter larger than those of the text around it, for their strokes
/// are finer.
constexpr double kSheetLetters = 1.25;
constexpr double kSheetLetterHeight = 16;

/// What a page takes beside its widest pictures: its margins, and those of the sheet with its red
/// line.
constexpr double kAroundPicture = 2 * kMargin + 76;
constexpr double kSmallestRoom = 160;
constexpr double kWidestPicture = 800;  ///< in sheet pixels
constexpr std::chrono::milliseconds kStillResizing(60);

/// The sizes, in percent of the interface font, and which of them is the usual one.
constexpr std::array kZooms{50, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr int kLastZoom = static_cast<int>(kZooms.size()) - 1;
constexpr int kUsualZoom = 3;
static_assert(kZooms[kUsualZoom] == 100);

QString FileOf(const QString& page) {
    return QStringLiteral(":/help/%1.html").arg(page);
}

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// Not every dark palette has a color for links that can be read on it.
QColor LinkColor(const QPalette& palette) {
    constexpr double kReadable = 4.5;
    constexpr QColor kLight(0x8a, 0xb8, 0xff);
    constexpr QColor kDark(0x1a, 0x4f, 0xa3);
    const QColor base = palette.color(QPalette::Base);
    const QColor link = palette.color(QPalette::Link);
    if (Contrast(link, base) >= kReadable) {
        return link;
    }
    return Contrast(kLight, base) > Contrast(kDark, base) ? kLight : kDark;
}

/// Between the ground and the text.
QColor Blend(const QPalette& palette, double text) {
    const QColor ink = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const auto part = [text](float of, float on) { return text * of + (1 - text) * on; };
    return QColor::fromRgbF(static_cast<float>(part(ink.redF(), base.redF())),
                            static_cast<float>(part(ink.greenF(), base.greenF())),
                            static_cast<float>(part(ink.blueF(), base.blueF())));
}

/// Both in whole pixels, so that pictures and the text around them agree.
int SheetLetters(double text) {
    return qRound(text * kSheetLetters);
}

/// Lengths in pixels: `text` is the height of the letters.
QString StyleSheet(const QPalette& palette, double text) {
    const auto px = [text](double times) {
        return QString::number(qRound(text * times)) + QStringLiteral("px");
    };
    return QStringLiteral(
               "h1 { font-size: %1; font-weight: 600; margin-top: 0; margin-bottom: %7; }"
               "h2 { font-size: %2; font-weight: 600; margin-top: %9; margin-bottom: %7; }"
               "p, li { margin-top: %7; margin-bottom: %7; }"
               "img.math { vertical-align: middle; }"
               "a { color: %3; }"
               "code { background-color: %4; }"
               ".path { color: %5; }"
               ".red { color: #ff0000; }"
               "table.sheet { background-color: %6; margin-top: %9; }"
               "td.margin { color: #6b6b6b; }"
               "td.redline { background-color: #e79a94; padding: 0; }"
               ".line { color: #000000; font-family: VantrelFont; font-size: %8; margin: 0; }"
               ".reason { color: #0000ff; margin: 0; }")
        .arg(px(1.8), px(1.3), LinkColor(palette).name(), Blend(palette, 0.12).name(),
             Blend(palette, 0.75).name(), kPaperColor.name(), px(0.4), px(kSheetLetters), px(1.1));
}

}  // namespace

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent), zoomStep(kUsualZoom) {
    // Before anything of it is told: what is known of it once stays as it is.
    TellHelp();
    setOpenExternalLinks(false);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kMargin);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpView::TakePage);
    connect(document(), &QTextDocument::contentsChanged, this, [this] { spoken.reset(); });
    redraw.setSingleShot(true);
    redraw.setInterval(kStillResizing);
    connect(&redraw, &QTimer::timeout, this, &HelpView::Restyle);
    Restyle();
}

bool HelpView::ShowPage(const QString& name) {
    if (!QFile::exists(FileOf(name))) {
        return false;
    }
    setSource(QUrl(QStringLiteral("help:") + name));
    return true;
}

/// The address is told before the browser's own source() knows it.
void HelpView::TakePage(const QUrl& address) {
    page = address.path();
    ShowMarks();
    if (!drawnAnew) {
        emit PageShown();
    }
}

int HelpView::Zoom() const {
    return kZooms[static_cast<std::size_t>(zoomStep)];
}

bool HelpView::CanZoomIn() const {
    return zoomStep < kLastZoom;
}

bool HelpView::CanZoomOut() const {
    return zoomStep > 0;
}

void HelpView::StepZoom(int steps) {
    SetZoom(std::clamp(zoomStep + steps, 0, kLastZoom));
}

void HelpView::ZoomAsUsual() {
    SetZoom(kUsualZoom);
}

void HelpView::SetZoom(int step) {
    if (step != zoomStep) {
        zoomStep = step;
        Restyle();
    }
}

void HelpView::Restyle() {
    QFont font = this->font();
    const int height = qMax(1, qRound(QFontInfo(font).pixelSize() * kReadingSize * Zoom() / 100.0));
    font.setPixelSize(height);
    document()->setDefaultFont(font);
    document()->setIndentWidth(height * 2);
    document()->setDefaultStyleSheet(StyleSheet(palette(), height));
    if (source().isEmpty()) {
        return;
    }
    QScrollBar* bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    const QScopedValueRollback samePage(drawnAnew, true);
    reload();
    bar->setValue(qRound(place * bar->maximum()));
}

/// An example is no page: the one on show stays.
void HelpView::doSetSource(const QUrl& address, QTextDocument::ResourceType type) {
    if (address.toString().startsWith(ToQString(kExampleScheme))) {
        emit ExampleAsked(address.path());
    } else {
        QTextBrowser::doSetSource(address, type);
    }
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::ImageResource) {
        const int letters = SheetLetters(document()->defaultFont().pixelSize());
        // A line of the sheet has the sheet's letters around its pictures, all else the page's.
        QFont around = document()->defaultFont();
        if (name.path().startsWith(QLatin1String("black"))) {
            around.setFamily(ToQString(kSheetFace));
            around.setPixelSize(letters);
        }
        // The toolkit lays the middle of a picture a quarter of a small letter above the baseline.
        const double sink = QFontMetrics(around).xHeight() / 4.0;
        return pictures.Picture(name, {letters / kSheetLetterHeight, devicePixelRatioF(),
                                       palette().color(QPalette::Text), sink, Room()});
    }
    picturesRoom = Room();
    QFile file(FileOf(name.path()));
    return file.open(QIODevice::ReadOnly) ? QVariant(QString::fromUtf8(file.readAll()))
                                          : QVariant();
}

/// For a picture, in pixels. The bar's room is kept for it, or its coming and going would change
/// the pictures, and these the bar.
double HelpView::Room() const {
    const double text = SheetLetters(document()->defaultFont().pixelSize());
    const double room = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
    return std::clamp(room - kAroundPicture, kSmallestRoom,
                      kWidestPicture * text / kSheetLetterHeight);
}

void HelpView::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (Room() != picturesRoom) {
        redraw.start();
    }
}

void HelpView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        Restyle();
    }
}

void HelpView::MarkWords(const QStringList& beginnings) {
    marked = beginnings;
    ShowMarks();
}

void HelpView::ShowMarks() {
    QList<ExtraSelection> selections;
    QTextCharFormat format;
    format.setBackground(QColor(0xff, 0xe0, 0x66));
    format.setForeground(Qt::black);
    for (const QString& beginning : std::as_const(marked)) {
        const QRegularExpression word(QStringLiteral("\\b") + QRegularExpression::escape(beginning),
                                      QRegularExpression::CaseInsensitiveOption |
                                          QRegularExpression::UseUnicodePropertiesOption);
        QTextCursor found(document());
        while (!(found = document()->find(word, found)).isNull() && found.hasSelection()) {
            selections.append({found, format});
        }
    }
    setExtraSelections(selections);
}

QString HelpView::Spoken() const {
    if (spoken) {
        return *spoken;
    }
    QStringList paragraphs;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QString words;
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            const QTextCharFormat format = fragment.charFormat();
            words += format.isImageFormat() ? format.stringProperty(QTextFormat::ImageAltText)
                                            : fragment.text();
        }
        if (!words.isEmpty()) {
            paragraphs << words;
        }
    }
    spoken = paragraphs.join(u'\n');
    return *spoken;
}

}  // namespace numerello
