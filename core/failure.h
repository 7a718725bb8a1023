#pragma once

#include <exception>
#include <string_view>

namespace numerello {

enum class FailureKind {
    Overflow,
    DivisionByZero,
    Format,
    Unanswered,  ///< a prompt got no answer; ends the solve without a message
};

/// "overflow", "division by zero", "format" or "unanswered".
std::string_view FailureName(FailureKind kind);

/// The one error that ends a solver. Thrown by the arithmetic, the conversions and the bounded
/// tables; caught by the solve driver's trap, and where what is done already has to be kept: a
/// sheet, a page, a graph, a practice test.
class Failure : public std::exception {
  public:
    explicit Failure(FailureKind kind) : kind(kind) {}

    FailureKind Kind() const { return kind; }
    const char* what() const noexcept override;

  private:
    FailureKind kind;
};

}  // namespace numerello
