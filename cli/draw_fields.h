#pragma once

#include <optional>

#include "catalogue/examples/draws.h"
#include "cli/fields.h"

namespace numerello {

/// The moment that "clock" tells, as Clock::MinutesAndSeconds does; nothing without the field.
std::optional<int> ReadMoment(Fields& fields);

/// The draws of a request: "clock" stands still at its moment, "seed" seeds what is drawn directly.
class RequestedDraws {
  public:
    /// Reads both fields.
    explicit RequestedDraws(Fields& fields);
    RequestedDraws(const RequestedDraws&) = delete;
    RequestedDraws& operator=(const RequestedDraws&) = delete;

    ExampleDraws& Draws() { return draws; }

  private:
    const Clock& Now() const;

    SystemClock present;
    std::optional<FixedClock> fixed;
    MersenneSource digits;
    MersenneSource direct;
    ExampleDraws draws;
};

}  // namespace numerello
