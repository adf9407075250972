#pragma once

#include <cstdint>
#include <random>

namespace fabula::platform {

/// Where random numbers come from. A run with the same seed draws the same numbers on every machine.
class RandomSource {
  public:
    virtual ~RandomSource() = default;

    /// A whole number from 1 to `n`, each equally likely. `n` is at least 1.
    virtual int UpTo(int n) = 0;
};

/// Draws from a Mersenne twister.
class SeededRandom final : public RandomSource {
  public:
    explicit SeededRandom(std::uint32_t seed) : engine_(seed) {}

    int UpTo(int n) override;

  private:
    std::mt19937 engine_;
};

/// A seed that differs from run to run.
std::uint32_t UnpredictableSeed();

}  // namespace fabula::platform
