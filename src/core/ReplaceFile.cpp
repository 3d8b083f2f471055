#include "core/ReplaceFile.h"

#include "core/RuntimeError.h"
#include "core/cPathControl.h"

#include <fstream>
#include <system_error>

namespace {

constexpr long pathFileAccessError = 75;

[[noreturn]] void fail(const std::string& file) {
    throw RuntimeError(pathFileAccessError, "Path/File access error: cannot write " + file);
}

} // namespace

void replaceFile(const std::string& file, std::string_view text) {
    const std::filesystem::path place = toPath(file);
    const std::filesystem::path draft = toPath(file + ".new");
    std::error_code error;
    std::ofstream out(draft, std::ios::trunc);
    out << text;
    out.close();
    if (out)
        std::filesystem::rename(draft, place, error);
    if (out && !error)
        return;
    std::filesystem::remove(draft, error);
    fail(file);
}
