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

void logCurrentError() noexcept {
    try {
        throw;
    } catch (const RuntimeError& error) {
        LogError(gsCurrentProc, error.number(), error.what());
    } catch (const std::filesystem::filesystem_error& error) {
        LogError(gsCurrentProc, fileAccessError, error.what());
    } catch (const std::bad_alloc&) {
        LogError(gsCurrentProc, outOfMemory, "Out of memory");
    } catch (const std::exception& error) {
        LogError(gsCurrentProc, internalError, error.what());
    } catch (...) {
        LogError(gsCurrentProc, internalError, "Unknown error");
    }
}
