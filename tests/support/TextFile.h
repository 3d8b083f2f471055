#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// The bytes of a file; empty where there is none.
inline std::string readText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void writeText(const std::string& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
}
