#pragma once

#include <optional>

#include "catalogue/examples/draws.h"
#include "cli/fields.h"

namespace numerello {

/// The moment that "clock" tells, as Clock::MinutesAndSeconds does; nothing without the field.
std::optional<int> ReadMoment(Fields& fields);

/// The draws of a request: "clock" stands still at its moment, without it they begin at the present
/// one; "seed" seeds what is drawn directly.
class RequestedDraws {
  public:
    /// Reads both fields.
    explicit RequestedDraws(Fields& fields);
    RequestedDraws(const RequestedDraws&) = delete;
    RequestedDraws& operator=(const RequestedDraws&) = delete;

    ExampleDraws& Draws() { return draws; }

    /// The clock of the draws, null where "clock" makes it stand still.
    SteppingClock* Steps() { return fixed ? nullptr : &present; }

  private:
    const Clock& Now() const;

    SteppingClock present{SystemClock()};
    std::optional<FixedClock> fixed;
    MersenneSource digits;
    MersenneSource direct;
    ExampleDraws draws;
};

}  // namespace numerello
