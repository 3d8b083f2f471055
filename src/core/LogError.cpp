#include "core/LogError.h"

#include "core/ModDeclarations.h"
#include "core/WriteLine.h"
#include "core/cPathControl.h"

#include <fstream>
#include <system_error>

namespace {

constexpr std::uintmax_t largestLog = 1000000; ///< bytes; a log of exactly this size still grows

/// Keeps at most one older generation. Where the copy fails the log stays, so that no line is lost.
void rollOver(const std::filesystem::path& log, const std::filesystem::path& older) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(log, error);
    if (error || size <= largestLog)
        return;
    std::filesystem::copy_file(log, older, std::filesystem::copy_options::overwrite_existing, error);
    if (!error)
        std::filesystem::remove(log, error);
}

} // namespace

void LogError(std::string_view procedure, long number, std::string_view description) noexcept {
    try {
        if (!gPaths || gPaths->ApplicationDataPath.empty())
            return;
        const std::string stem = joinPath(gPaths->ApplicationDataPath, "CS Mapping Error");
        const std::filesystem::path log = toPath(stem + ".log");
        rollOver(log, toPath(stem + ".bak"));
        WriteLine line;
        line.dateTime(std::chrono::system_clock::now()).text(procedure).number(number).text(description);
        std::ofstream(log, std::ios::app) << line.str() << '\n';
    } catch (...) {
        // There is nobody left to tell.
    }
}
