#include "cli/terminal.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ostream>
#include <string_view>
#include <utility>

#include "cli/terminal_text.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr int kEnd = -1;
constexpr int kEscape = 0x1B;
constexpr int kEscapeWait = 20;  ///< ms until an Escape is a key of its own
constexpr int kUsualColumns = 80;
constexpr std::string_view kNoCharacter = "\uFFFD";

// What a signal handler needs.
termios savedSettings;
volatile std::sig_atomic_t mustRestore = 0;

void RestoreSettings() {
    if (mustRestore != 0) {
        mustRestore = 0;
        tcsetattr(STDIN_FILENO, TCSANOW, &savedSettings);
    }
}

/// Calls nothing but what a signal handler may.
extern "C" void RestoreAndEnd(int signal) {
    RestoreSettings();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void RestoreOnSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGABRT, SIGSEGV}) {
        std::signal(signal, RestoreAndEnd);
    }
}

/// A terminal that cannot move its cursor gets lines.
bool TakesKeys() {
    const char* kind = std::getenv("TERM");
    const bool canDraw = kind != nullptr && std::string_view(kind) != "dumb";
    return canDraw && isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

std::size_t Columns() {
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsualColumns;
}

std::size_t Continuations(int byte) {
    return byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
}

}  // namespace

Terminal::Terminal(std::ostream& out) : out(out) {
    if (!TakesKeys() || tcgetattr(STDIN_FILENO, &savedSettings) != 0) {
        prompts = isatty(STDIN_FILENO) != 0;
        return;
    }
    termios settings = savedSettings;
    settings.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG | IEXTEN);
    settings.c_iflag &= ~static_cast<tcflag_t>(IXON);
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    mustRestore = 1;
    RestoreOnSignals();
    raw = tcsetattr(STDIN_FILENO, TCSANOW, &settings) == 0;
}

Terminal::~Terminal() {
    if (raw && !shown.empty()) {
        out << '\n';
    }
    out << std::flush;
    RestoreSettings();
}

int Terminal::NextByte() {
    const int byte = unread ? *std::exchange(unread, std::nullopt) : NextUnreadByte();
    lineBegins = byte == '\n' || byte == kEnd;
    return byte;
}

int Terminal::NextUnreadByte() {
    while (true) {
        unsigned char byte = 0;
        const ssize_t count = read(STDIN_FILENO, &byte, 1);
        if (count == 1) {
            return byte;
        }
        if (count == 0 || errno != EINTR) {
            return kEnd;
        }
    }
}

void Terminal::Unread(int byte) {
    unread = byte;
    lineBegins = false;
}

bool Terminal::ByteWaits() const {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, kEscapeWait) > 0;
}

/// The bytes that a key such as an arrow sends behind its Escape.
void Terminal::SkipEscape() {
    if (!raw || !ByteWaits()) {
        return;
    }
    int byte = NextByte();
    if (byte != '[' && byte != 'O') {
        return;
    }
    do {
        byte = NextByte();
    } while (byte != kEnd && (byte < '@' || byte > '~'));
}

KeyPress Terminal::Read() {
    using enum KeyPress::Kind;
    out << std::flush;
    while (true) {
        const int byte = NextByte();
        switch (byte) {
            case kEnd:
            case 0x03:
            case 0x04:
                return {Leave, ""};
            case 0x05:
                return {Example, ""};
            case 0x14:
                return {Topic, ""};
            case '\n':
                return {Enter, ""};
            case '\b':
            case 0x7F:
                return {Backspace, ""};
            case kEscape:
                SkipEscape();
                continue;
            default:
                break;
        }
        if (byte < ' ') {
            continue;
        }
        return {Character, CharacterFrom(byte)};
    }
}

/// What follows a broken character is a key of its own.
std::string Terminal::CharacterFrom(int lead) {
    std::string character(1, static_cast<char>(lead));
    for (std::size_t left = Continuations(lead); left > 0; --left) {
        const int byte = NextByte();
        if (byte == kEnd || (byte & 0xC0) != 0x80) {
            Unread(byte);
            return std::string(kNoCharacter);
        }
        character += static_cast<char>(byte);
    }
    return Characters(character).size() == 1 ? VisibleText(character) : std::string(kNoCharacter);
}

void Terminal::SkipLine() {
    while (!raw && !lineBegins) {
        NextByte();
    }
}

void Terminal::Say(std::string_view text) {
    EraseShown();
    out << text << '\n';
    if (raw) {
        out << shown;
    }
}

void Terminal::Show(std::string text) {
    EraseShown();
    shown = std::move(text);
    if (raw || (prompts && lineBegins)) {
        out << shown << std::flush;
    }
}

void Terminal::Keep() {
    if (!raw) {
        out << shown;
    }
    out << '\n';
    shown.clear();
}

void Terminal::Drop() {
    EraseShown();
    shown.clear();
}

/// The shown line may go over several rows of the terminal.
void Terminal::EraseShown() {
    if (!raw || shown.empty()) {
        return;
    }
    const std::size_t rows = (Characters(shown).size() - 1) / Columns();
    if (rows > 0) {
        out << "\x1B[" << rows << 'A';
    }
    out << "\r\x1B[J";
}

}  // namespace numerello
