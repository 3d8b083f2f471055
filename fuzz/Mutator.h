#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

/// Makes new inputs out of known ones: bytes changed, tokens put in, words exchanged, pieces dropped, doubled or taken
/// from another input, ends cut off.
class Mutator {
public:
    Mutator(std::vector<std::string> inputs, std::vector<std::string> tokens, std::size_t longest);

    std::string next(std::mt19937_64& random) const;
    std::string mutated(std::string input, std::mt19937_64& random) const;
    /// Keeps an input, to be mutated further.
    void keep(std::string input) { inputs_.push_back(std::move(input)); }
    const std::vector<std::string>& inputs() const { return inputs_; }

private:
    void change(std::string& input, std::mt19937_64& random) const;
    void changeBytes(std::string& input, std::mt19937_64& random) const;

    std::vector<std::string> inputs_;
    std::vector<std::string> tokens_;
    std::size_t longest_;
};
