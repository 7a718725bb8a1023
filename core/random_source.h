#pragma once

#include <cstdint>
#include <optional>
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

/// Its table is set up at the first draw: most that are made are never drawn from.
class MersenneSource : public RandomSource {
  public:
    explicit MersenneSource(std::uint32_t seed = 0) : seed(seed) {}

    void Seed(std::uint32_t newSeed) override {
        seed = newSeed;
        engine.reset();
    }

    double Rnd() override {
        if (!engine) {
            engine.emplace(seed);
        }
        return static_cast<double>((*engine)()) / 4294967296.0;
    }

  private:
    std::uint32_t seed;
    std::optional<std::mt19937> engine;
};

}  // namespace numerello
