#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// One input. Gives 0 where the input was meaningful (a statement that ran, a file that opened) and -1 where it was
/// refused as it should be. A fault ends the program: a crash, a finding of a sanitizer, or an exception that may not
/// come out.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Meaningful inputs to begin with.
std::vector<std::string> fuzzSeeds();
/// Pieces that mutations put in; empty where the input is no text.
std::vector<std::string> fuzzTokens();
