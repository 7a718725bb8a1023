#pragma once

namespace numerello {

struct Date {
    int year = 2000;
    int month = 1;  ///< 1 to 12
    int day = 1;    ///< 1 to 31
};

/// The present moment, as far as the program looks at it.
class Clock {
  public:
    virtual ~Clock() = default;

    /// Minutes and seconds as the number that "mmss" spells: 0 to 5959.
    virtual int MinutesAndSeconds() const = 0;

    virtual Date Today() const = 0;
};

class SystemClock : public Clock {
  public:
    int MinutesAndSeconds() const override;
    Date Today() const override;
};

/// A clock that stands still.
class FixedClock : public Clock {
  public:
    explicit FixedClock(int minutesAndSeconds, Date today = {})
        : minutesAndSeconds(minutesAndSeconds), today(today) {}

    int MinutesAndSeconds() const override { return minutesAndSeconds; }
    Date Today() const override { return today; }

  private:
    int minutesAndSeconds;
    Date today;
};

/// A clock that goes on only when it is told to.
class SteppingClock : public Clock {
  public:
    /// Begins at the moment that the other one shows.
    explicit SteppingClock(const Clock& from)
        : minutesAndSeconds(from.MinutesAndSeconds()), today(from.Today()) {}

    int MinutesAndSeconds() const override { return minutesAndSeconds; }
    Date Today() const override { return today; }

    /// Goes on by a second; behind the last one of the hour comes the first.
    void Step();

  private:
    int minutesAndSeconds;
    Date today;
};

}  // namespace numerello
