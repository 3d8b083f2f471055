#pragma once

#include <random>
#include <vector>

/// The same choices for the same seed, on every machine.
class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}
    int below(int end) { return static_cast<int>(engine_() % static_cast<unsigned>(end)); }
    bool oneIn(int chances) { return below(chances) == 0; }
    template<typename T>
    const T& oneOf(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    std::mt19937 engine_;
};
