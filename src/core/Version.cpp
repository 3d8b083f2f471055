#include "core/Version.h"

namespace {

std::string padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (text.size() < digits)
        text.insert(0, digits - text.size(), '0');
    return text;
}

} // namespace

std::string versionText(int major, int minor, int revision) {
    return std::to_string(major) + '.' + padded(minor, 2) + '.' + padded(revision, 4);
}

std::string programVersion() {
    return versionText(CALLSCOPE_VERSION_MAJOR, CALLSCOPE_VERSION_MINOR, CALLSCOPE_VERSION_PATCH);
}
