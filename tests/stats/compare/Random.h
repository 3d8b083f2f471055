#pragma once

#include <cstdlib>
#include <random>
#include <vector>

/// The same choices for the same seed, on every machine.
class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}
    int below(int end) { return static_cast<int>(engine_() % static_cast<unsigned>(end)); }
    bool oneIn(int chances) { return below(chances) == 0; }
    template<typename T>
    T oneOf(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    std::mt19937 engine_;
};

/// Seeds from 1 on, or the one that CALLSCOPE_FIGURES_SEED names.
inline std::vector<unsigned> seeds(unsigned count) {
    if (const char* one = std::getenv("CALLSCOPE_FIGURES_SEED"))
        return {static_cast<unsigned>(std::atoi(one))};
    std::vector<unsigned> all;
    for (unsigned seed = 1; seed <= count; ++seed)
        all.push_back(seed);
    return all;
}
