#pragma once

namespace numerello {

/// The present moment, as far as the program looks at it.
class Clock {
  public:
    virtual ~Clock() = default;

    /// Minutes and seconds as the number that "mmss" spells: 0 to 5959.
    virtual int MinutesAndSeconds() const = 0;
};

class SystemClock : public Clock {
  public:
    int MinutesAndSeconds() const override;
};

/// A clock that stands still.
class FixedClock : public Clock {
  public:
    explicit FixedClock(int minutesAndSeconds) : minutesAndSeconds(minutesAndSeconds) {}

    int MinutesAndSeconds() const override { return minutesAndSeconds; }

  private:
    int minutesAndSeconds;
};

}  // namespace numerello
