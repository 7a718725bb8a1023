#include <optional>

#include "catalogue/complete_line.h"
#include "catalogue/examples/families.h"
#include "catalogue/guided_input.h"
#include "core/text.h"
#include "core/topic_codes.h"

/// Examples that are typed at random: the filter keeps what a learner could type.
namespace numerello {

namespace {

/// What is longer would run over the edge of the sheet, where keys are dropped: another walk
/// begins.
constexpr int kLongestWalk = 50;

/// The line as far as it is typed, on an entry form of its own.
class Walk {
  public:
    explicit Walk(const TopicChoice& topic) { problem.topic = topic; }

    /// Whether the filter takes the key.
    bool Propose(char key) {
        FormFilter(problem, std::string_view(&key, 1));
        return problem.input.KeyAccepted;
    }

    int Code() const { return problem.topic.ProblemType; }
    int CharCount() const { return problem.typed.ExprCharCount; }
    char Last() const {
        const std::string& line = problem.typed.ProblemText;
        return line.empty() ? '\0' : line.back();
    }
    bool IsEmpty() const { return CharCount() == 0; }
    bool BehindDigit() const { return IsDigit(Last()); }
    bool BehindLetter() const { return IsLetter(Last()); }
    bool ParenthesisIsOpen() const { return problem.input.ParenDepth > 0; }
    bool EqualsTyped() const { return problem.input.EqualsTyped; }
    bool IsComplete() const { return LineIsComplete(problem); }
    const TypedProblem& Typed() const { return problem.typed; }

  private:
    Problem problem;
};

char Digit(ExampleDraws& draws) {
    return static_cast<char>('2' + draws.Below(8));
}

/// The first `count` of x, y, z.
char Letter(ExampleDraws& draws, int count) {
    return static_cast<char>('x' + draws.Below(count));
}

// --- 81, 82, 91, 120 ----------------------------------------------------------------------------

/// A number, with all that belongs to it in the topic.
void ProposeNumber(Walk& walk, ExampleDraws& draws) {
    if (walk.Last() == '^') {
        walk.Propose(static_cast<char>('2' + draws.Below(2)));
    } else if (walk.Code() == kCalculatingRoots) {
        if (!walk.BehindDigit() && walk.Propose(Digit(draws)) && walk.Propose('~')) {
            walk.Propose(Digit(draws));
        }
    } else if (walk.Propose(Digit(draws)) && walk.Code() == kCalculatingWithExponents) {
        walk.Propose('^');
    }
}

void ProposeOperator(Walk& walk, ExampleDraws& draws) {
    const bool behindBar = walk.Last() == '|';
    if (!walk.BehindDigit() && !behindBar) {
        return;
    }
    switch (draws.Below(3)) {
        case 0:
            walk.Propose('*');
            break;
        case 1:
            if (!behindBar) {
                walk.Propose('+');
            }
            break;
        default:
            walk.Propose('-');
    }
}

void ArithmeticTurn(Walk& walk, ExampleDraws& draws) {
    if (walk.IsEmpty() && walk.Code() == kAbsoluteValues) {
        walk.Propose('|');
        return;
    }
    switch (draws.Below(3)) {
        case 0:
            ProposeNumber(walk, draws);
            break;
        case 1:
            ProposeOperator(walk, draws);
            break;
        default:
            if (walk.IsEmpty() || walk.BehindDigit()) {
                walk.Propose('|');
            }
    }
}

// --- 102, 103, 121 ------------------------------------------------------------------------------

void ProposeBehindOperand(Walk& walk, ExampleDraws& draws) {
    constexpr std::string_view kKeys = "*+-/()^";
    const bool open = walk.ParenthesisIsOpen();
    if (open && draws.Below(4) == 0) {
        walk.Propose(')');
        return;
    }
    const char key = kKeys[static_cast<std::size_t>(draws.Below(7))];
    const bool isDue = key == '(' ? !open : key == ')' ? open : true;
    if (isDue) {
        walk.Propose(key);
    }
}

void PolynomialTurn(Walk& walk, ExampleDraws& draws) {
    switch (draws.Below(walk.IsEmpty() ? 2 : 3)) {
        case 0:
            if (!walk.BehindDigit()) {
                walk.Propose(walk.Last() == '^' ? '2' : Digit(draws));
            }
            break;
        case 1:
            if (walk.Code() != kComplexExpressions) {
                walk.Propose(Letter(draws, 3));
            }
            break;
        default:
            if (walk.BehindDigit() || walk.BehindLetter() || walk.Last() == ')') {
                ProposeBehindOperand(walk, draws);
            }
    }
}

// --- 101, 105 -----------------------------------------------------------------------------------

/// A "-" may stand anywhere as far as the walk goes.
void ProposeEquationOperator(Walk& walk, ExampleDraws& draws) {
    constexpr std::string_view kKeys = "*+-/";
    const char key = kKeys[static_cast<std::size_t>(draws.Below(4))];
    if (key != '+' || walk.Last() != '=') {
        walk.Propose(key);
    }
}

void EquationTurn(Walk& walk, ExampleDraws& draws) {
    switch (draws.Below(walk.IsEmpty() ? 2 : 4)) {
        case 0:
            if (!walk.BehindDigit()) {
                walk.Propose(Digit(draws));
            }
            break;
        case 1:
            walk.Propose(Letter(draws, 2));
            break;
        case 2:
            ProposeEquationOperator(walk, draws);
            break;
        default:
            if (!walk.EqualsTyped() && draws.Below(4) == 1) {
                walk.Propose('=');
            }
    }
}

// --- All ----------------------------------------------------------------------------------------

struct Family {
    void (*turn)(Walk&, ExampleDraws&);
    int length;            ///< to be reached
    int perComplex;        ///< further, for each point of ComplexEx
    bool endsInLetterToo;  ///< or in a closed parenthesis
};

constexpr Family kArithmetic{ArithmeticTurn, 5, 5, false};
constexpr Family kPolynomials{PolynomialTurn, 9, 2, true};
constexpr Family kEquations{EquationTurn, 9, 2, false};

const Family& FamilyOf(int code) {
    switch (code) {
        case kSimplifyingPolynomials:
        case kEvaluatingPolynomials:
        case kComplexExpressions:
            return kPolynomials;
        case kSolvingEquations:
        case kGraphingAnEquation:
            return kEquations;
        default:
            return kArithmetic;
    }
}

/// An equation is complete with its sign only.
bool HasEnded(const Walk& walk, const Family& family, int target) {
    const bool mayEnd = walk.BehindDigit() ||
                        (family.endsInLetterToo && (walk.BehindLetter() || walk.Last() == ')'));
    return walk.CharCount() >= target && mayEnd && walk.IsComplete();
}

}  // namespace

Example WalkExample(const ExampleRequest& request, ExampleDraws& draws) {
    const Family& family = FamilyOf(request.Code());
    const int target = family.length + request.ComplexEx * family.perComplex;
    std::optional<Walk> walk(request.topic);
    while (!HasEnded(*walk, family, target)) {
        family.turn(*walk, draws);
        if (walk->CharCount() > kLongestWalk) {
            walk.emplace(request.topic);
        }
    }
    Example example;
    example.keys = walk->Typed().ProblemText;
    example.printed = walk->Typed().DisplayLine;
    return example;
}

}  // namespace numerello
