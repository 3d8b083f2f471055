#pragma once

#include "core/ModDeclarations.h"

#include <string>
#include <string_view>
#include <utility>

/// Names the procedure under which errors are logged (gsCurrentProc) as long as it lives; its caller's name comes back
/// then. For procedures within others.
class CurrentProcedure {
public:
    explicit CurrentProcedure(std::string_view name) : caller_(std::exchange(gsCurrentProc, std::string(name))) {}
    ~CurrentProcedure() { gsCurrentProc = std::move(caller_); }
    CurrentProcedure(const CurrentProcedure&) = delete;
    CurrentProcedure& operator=(const CurrentProcedure&) = delete;

private:
    std::string caller_;
};
