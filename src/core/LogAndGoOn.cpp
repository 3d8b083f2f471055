#include "core/LogAndGoOn.h"

#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"

#include <filesystem>
#include <new>

namespace {

constexpr long outOfMemory = 7;
constexpr long internalError = 51;
constexpr long fileAccessError = 75;

} // namespace

bool logAndGoOn(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (...) {
        logCurrentError();
        return false;
    }
}

bool ignoreErrors(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (...) {
        return false;
    }
}

ErrorFacts currentError() {
    try {
        throw;
    } catch (const RuntimeError& error) {
        return {error.number(), error.what()};
    } catch (const std::filesystem::filesystem_error& error) {
        return {fileAccessError, error.what()};
    } catch (const std::bad_alloc&) {
        return {outOfMemory, "Out of memory"};
    } catch (const std::exception& error) {
        return {internalError, error.what()};
    } catch (...) {
        return {internalError, "Unknown error"};
    }
}

void logCurrentError() noexcept {
    try {
        const ErrorFacts error = currentError();
        LogError(gsCurrentProc, error.number, error.description);
    } catch (...) {
        // No memory even for the words.
    }
}
