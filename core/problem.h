#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/bounds.h"
#include "core/step_log.h"

namespace numerello {

/// What was chosen in the catalogue.
struct TopicChoice {
    int ProblemType = 0;      ///< code of the topic, 0 when none is chosen
    int LastProblemType = 0;  ///< ProblemType of the last completed choice
    std::string TopicTitle;
    int InputMask = 0;  ///< 14 bits, one for each class of input
    std::string InstructionText;
    int MaxDigits = 5;
    int MaxVariables = 0;
    int LinearGraphTopic = 0;  ///< 1 once the linear graph was chosen; kept, though nothing asks
    bool ChooserCancelled = false;
    bool ClickedOnly = false;  ///< the topic came by a click, a list change or a file
};

/// The problem as typed, in three successive forms, and its letters.
struct TypedProblem {
    static constexpr int kTopCell = 2000;
    static constexpr int kTopVariable = 25;
    /// Of a line that is set out: token k, from 0, stands at (k + 1) * kCellPitch, the mark before
    /// it one cell lower, those behind it in the next two.
    static constexpr int kCellPitch = 4;

    BoundedArray<std::string, kTopCell> ExprChars;  ///< one character a cell, from 0
    int ExprCharCount = 0;                          ///< the next key lands at this index
    BoundedArray<std::string, kTopCell> ExprCells;  ///< tokens from 0, then set out
    int ExprCellCount = 0;                          ///< top used index of ExprCells
    BoundedArray<std::string, kTopCell> ExprVariants;
    BoundedArray<std::string, kTopVariable> VarNames;  ///< from index 1; index 0 stays empty
    int VarCount = 0;         ///< next free index of VarNames once the letters are collected
    std::string ProblemText;  ///< ExprChars joined, without spaces
    std::string DisplayLine;  ///< the problem as mathematics, as the sheet shows it while typed
};

/// What is open where the next key of the line lands. The line alone decides it.
struct LineFlags {
    bool RootOpen = false;
    bool AbsOpen = false;
    int AbsDepth = 0;  ///< 1 while AbsOpen: bars do not nest
    bool EqualsTyped = false;
    bool InExponent = false;
    bool InFraction = false;  ///< in a denominator
    int FractionDepth = 0;    ///< ParenDepth where the last fraction bar was typed
    int ParenDepth = 0;
};

/// What the keystroke filter remembers between two keys.
struct InputState : LineFlags {
    bool KeyAccepted = false;
    std::string InputError;  ///< why the last key was refused
};

/// The boxes and lists of the entry form.
struct EntryBoxes {
    static constexpr int kNoChoice = -1;

    std::array<std::string, 6> Text;                        ///< Text1 to Text6 at 0 to 5
    std::array<int, 3> ListIndex{kNoChoice, kNoChoice, 0};  ///< Combo1 to Combo3 at 0 to 2

    /// By the numbers of their names: boxes 1 to 6, lists 1 to 3. Failure(Format) for others.
    std::string& Box(int number);
    const std::string& Box(int number) const;
    int& List(int number);
    int List(int number) const;
};

/// The settings that shape answers, examples and explanations.
struct AnswerSettings {
    static constexpr int kComplex = 2;

    int RoundDigits = 2;  ///< 1 to 5
    bool UseFractions = true;
    int DetailLevel = 1;  ///< 1 to 3: keep one recorded step in so many
    int ExpDetail = 3;    ///< 1 to 3
    int ComplexEx = 0;    ///< 0, or kComplex
    bool ClickNotify = true;
    int whichAssistant = 3;  ///< 1 to 3
    bool mnuShowStep = true;
};

/// The two numbers to be shown on a number line.
struct NumberLineRequest {
    double A = 0;
    double B = 0;
};

/// Where playback stands and where the next line goes.
struct Playback {
    int ShownStep = 0;
    /// 0 step by step, -1 all at once. A column problem counts in it what it has still to reveal.
    int ShowAllSteps = 0;
    int CurrentPage = 0;  ///< 0 to 9
    bool TypingEnabled = false;
    int SavedPointer = 0;  ///< unused: each face puts its pointer back itself
    double LineEndX = 0;
    double LineEndY = 0;
    std::optional<double> DrawingRow;  ///< Y at which a solver wants the first sheet to go on
    std::optional<NumberLineRequest> NumberLine;  ///< what a solver wants drawn before its lines
};

/// At most one flag is set.
struct ColumnRequest {
    bool ColumnAdd = false;
    bool ColumnSubtract = false;
    bool ColumnMultiply = false;
    bool ColumnDivide = false;
    std::string ColumnTop;
    std::string ColumnBottom;

    bool Any() const;
    void ClearFlags();
};

/// What a GraphMode asks for.
enum : int { kNoGraph, kOnePointGraph, kTwoPointsGraph, kEquationGraph };

struct GraphRequest {
    int GraphMode = kNoGraph;
    double GraphX1 = 0;
    double GraphY1 = 0;
    double GraphX2 = 0;
    double GraphY2 = 0;
};

/// Which commands may be given, and how light and pencil look. The window shows these.
struct EntryControls {
    enum class LightPicture { Neutral, Correct, Incorrect };
    enum class PencilPicture { Pencil, Eraser };

    bool SolveEnabled = false;
    bool PrintEnabled = false;
    bool SaveEnabled = false;
    bool GraphEnabled = false;
    LightPicture Light = LightPicture::Neutral;
    std::string LightToolTip;
    PencilPicture Pencil = PencilPicture::Pencil;
};

/// The record of the current problem. Whoever owns a run owns one and passes it by reference.
struct Problem {
    TopicChoice topic;
    TypedProblem typed;
    InputState input;
    EntryBoxes boxes;
    StepLog log;
    AnswerSettings settings;
    Playback playback;
    ColumnRequest columns;
    GraphRequest graph;
    EntryControls controls;
};

/// Whether the topic is typed on the paper line (codes 28 to 199) rather than into boxes.
bool IsTypedOnLine(int ProblemType);

/// The one full reset of the typed problem and, when `ClearSteps`, of the step log.
void ResetProblem(Problem& problem, bool ClearSteps);

/// Takes back what a problem asked for beside its lines: columns, a graph, a number line. It must
/// not reach into the next problem.
void DropRequests(Problem& problem);

/// Fills VarNames with the letters of ExprChars in order of first appearance.
void CollectVariables(TypedProblem& typed);

/// The index of a letter in VarNames, 0 when absent.
int FindVariable(const TypedProblem& typed, std::string_view letter);

}  // namespace numerello
