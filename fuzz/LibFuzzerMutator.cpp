// Gives the seeds and the tokens of a target to the fuzzer that comes with the compiler.

#include "fuzz/Mutator.h"
#include "fuzz/Target.h"

#include <algorithm>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t longest);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t longest,
                                               unsigned seed);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t longest,
                                               unsigned seed) {
    static const Mutator mutator(fuzzSeeds(), fuzzTokens(), 1 << 17);
    std::mt19937_64 random(seed);
    if (random() % 3 == 0)
        return LLVMFuzzerMutate(data, size, longest);
    const bool fresh = size == 0 || random() % 16 == 0;
    const std::string next =
        fresh ? mutator.next(random) : mutator.mutated({reinterpret_cast<const char*>(data), size}, random);
    const std::size_t length = std::min(next.size(), longest);
    std::copy_n(next.begin(), length, data);
    return length;
}
