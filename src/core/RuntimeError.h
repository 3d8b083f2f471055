#pragma once

#include <stdexcept>
#include <string>

/// A run-time error with the number under which the log and the procedures know it.
/// Numbers below 1000 are general (6 overflow, 11 division by zero, 13 type mismatch, 53 file not found, 62 input past
/// the end of a file); numbers of 3000 and above come from the database engine (see data/types/DatabaseError.h).
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(long number, const std::string& description) : std::runtime_error(description), number_(number) {}

    long number() const { return number_; }
    std::string description() const { return what(); }

private:
    long number_;
};
