// Random numbers that are the same on every platform: SplitMix64, and nothing of <random>, whose
// distributions each library writes in its own way.
#pragma once

#include <cstdint>

namespace kavelin::demo {

class Random {
  public:
    explicit Random(std::uint64_t seed) : lngState(seed) {}

    std::uint64_t Next()
    {
        lngState += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = lngState;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    // From `least` to `most`, both possible. The ends may be anything below 2^32 apart.
    std::int64_t Between(std::int64_t least, std::int64_t most)
    {
        const auto width = static_cast<std::uint64_t>(most - least) + 1;
        return least + static_cast<std::int64_t>(((Next() >> 32) * width) >> 32);
    }

    // True in `percent` of a hundred cases.
    bool Chance(int percent) { return Between(0, 99) < percent; }

  private:
    std::uint64_t lngState;
};

}  // namespace kavelin::demo
