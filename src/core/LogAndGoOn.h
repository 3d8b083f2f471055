#pragma once

#include <functional>
#include <string>

/// Runs one step of a procedure under the rule "log and go on": an error is written to the error log under
/// gsCurrentProc, and the caller continues with its next step. Returns whether the step ran to its end.
bool logAndGoOn(const std::function<void()>& step);

/// Runs a step whose failure is expected in normal flow (dropping a table that may not exist): errors leave no trace.
bool ignoreErrors(const std::function<void()>& step);

/// Number and words of an error.
struct ErrorFacts {
    long number;
    std::string description;
};

/// For a handler of its own, inside a catch block only: the error being handled.
ErrorFacts currentError();

/// The same, written to the error log under gsCurrentProc.
void logCurrentError() noexcept;
