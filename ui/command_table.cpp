#include "ui/command_table.h"

#include <array>

namespace numerello {

namespace {

using enum OpenWhen;

constexpr auto kMenus = std::to_array<MenuRow>({
    {"mnuFile", "&File"},
    {"mnuCreate", "&Tools"},
    {"mnuSpecial", "&Functions"},
    {"mnuOptions", "&Options"},
    {"mnuHelp", "&Help"},
    {"mnuWeb", "Vantrel on the &Web", false},
});

constexpr bool kTicks = true;

constexpr auto kCommands = std::to_array<CommandRow>({
    {"mnuFile", "mnuNew", "&New Problem", Always, "Ctrl+N"},
    {"mnuFile"},
    {"mnuFile", "mnuPrint", "&Print", Printable, "Ctrl+P"},
    {"mnuFile", "mnuPrintSetup", "P&rint Setup", Printable},
    {"mnuFile"},
    {"mnuFile", "mnuSave", "Save Problem", Saveable, "Ctrl+S"},
    {"mnuFile", "mnuLoad", "Load Problem", Always, "Ctrl+O"},
    {"mnuFile"},
    {"mnuFile", "mnuExit", "&Exit", Always, "Ctrl+Q"},

    {"mnuCreate", "mnuSolve", "&Solve!", Solvable},
    {"mnuCreate", "mnuExample", "E&xample Problem", OnSheet},
    {"mnuCreate", "mnuErase", "Erase &Problem", OnSheet},
    {"mnuCreate"},
    {"mnuCreate", "mnuGraph", "Create &Graph", Graphable},
    {"mnuCreate", "mnuPracticeTest", "Practice &Test"},
    {"mnuCreate"},
    {"mnuCreate", "mnuExp", "&Explanation", OnSheet},

    {"mnuSpecial", "mnuSquareRoot", "Square &Root", TakesKeys},
    {"mnuSpecial", "mnuExponet", "&Exponent (^)", TakesKeys},
    {"mnuSpecial", "mnuAbsValue", "Absolute &Value (|)", TakesKeys},
    {"mnuSpecial", "mnuAddition", "&Add (+)", TakesKeys},
    {"mnuSpecial", "mnuSubtraction", "&Subtract (-)", TakesKeys},
    {"mnuSpecial", "mnuMultiplication", "&Multiply (*)", TakesKeys},
    {"mnuSpecial", "mnuDivision", "&Divide (/)", TakesKeys},
    {"mnuSpecial"},
    {"mnuSpecial", "mnuConvertDF", "&Fraction/Decimal Conversion"},

    {"mnuOptions", "mnuPencil", "Use &Pencil", Always, "", kTicks},
    {"mnuOptions", "mnuShowStep", "&Show Step-By-Step", Always, "", kTicks},
    {"mnuOptions", "mnuHideWiz", "Show &Wiz Assistant", Always, "", kTicks},
    {"mnuOptions", "mnuShowLight", "Show &Guided Input Light", Always, "", kTicks},
    {"mnuOptions"},
    {"mnuOptions", "mnuChange", "Se&ttings"},

    {"mnuHelp", "mnuHelpTopics", "Help Topics", Always, "F1"},
    {"mnuHelp", "mnuWeb"},
    {"mnuHelp", "mnuOnlineSupport", "Online Support"},
    {"mnuHelp"},
    {"mnuHelp", "mnuAbout", "&About Numerello"},

    {"mnuWeb", "mnuAlgSol", "Numerello &Solved!"},
    {"mnuWeb", "mnuHomePage", "Vantrel &Home Page"},
});

constexpr auto kPopUps = std::to_array<PopUpRow>({
    {"mnuHidden", "mnuHide", "&Hide", "mnuHideWiz", false},
    {"mnuHidden", "mnuHideOptions", "&Options...", "mnuChange", false},
    {"mnuHidden2", "mnuUsePencil", "Use &Pencil", "mnuPencil", kTicks},
    {"mnuHidden3", "mnuHideLight", "&Hide Guided Input Light", "mnuShowLight", false},
});

constexpr auto kButtons = std::to_array<ButtonRow>({
    {"new", "mnuNew", "New Problem"},
    {},
    {"save", "mnuSave", "Save Problem"},
    {"open", "mnuLoad", "Load Problem"},
    {"print", "mnuPrint", "Print"},
    {},
    {"practice", "mnuPracticeTest", "Practice Test"},
    {"graph", "mnuGraph", "Graph"},
    {},
    {"solve", "mnuSolve", "Solve!"},
    {},
    {"example", "mnuExample", "Example"},
    {"clear", "mnuErase", "Erase"},
    {},
    {"root", "mnuSquareRoot", "Insert Root"},
    {"power", "mnuExponet", "Insert Exponent"},
    {},
    {"fracdec", "mnuConvertDF", "Convert Between Fraction and Decimal Format"},
    {},
    {"web", "mnuHomePage", "Vantrel on the Web"},
});

constexpr auto kFunctions = std::to_array<FunctionRow>({
    {"mnuSquareRoot", "~"},
    {"mnuExponet", "^"},
    {"mnuAbsValue", "|"},
    {"mnuAddition", "+"},
    {"mnuSubtraction", "-"},
    {"mnuMultiplication", "*"},
    {"mnuDivision", "/"},
});

}  // namespace

std::span<const MenuRow> MenuRows() {
    return kMenus;
}

std::span<const CommandRow> CommandRows() {
    return kCommands;
}

std::span<const PopUpRow> PopUpRows() {
    return kPopUps;
}

std::span<const ButtonRow> ButtonRows() {
    return kButtons;
}

std::span<const FunctionRow> FunctionRows() {
    return kFunctions;
}

}  // namespace numerello
