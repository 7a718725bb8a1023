#pragma once

#include <cstdint>
#include <random>

namespace numerello {

/// A stream of draws. The same seed gives the same draws, on every platform.
class RandomSource {
  public:
    virtual ~RandomSource() = default;

    virtual void Seed(std::uint32_t seed) = 0;

    /// A number from 0 up to, not including, 1.
    virtual double Rnd() = 0;
};

class MersenneSource : public RandomSource {
  public:
    explicit MersenneSource(std::uint32_t seed = 0) : engine(seed) {}

    void Seed(std::uint32_t seed) override { engine.seed(seed); }
    double Rnd() override { return static_cast<double>(engine()) / 4294967296.0; }

  private:
    std::mt19937 engine;
};

}  // namespace numerello
