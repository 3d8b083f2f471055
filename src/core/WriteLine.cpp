#include "core/WriteLine.h"

#include <array>
#include <ctime>

namespace {

std::tm localTime(std::time_t time) {
    std::tm parts{};
#ifdef _WIN32
    localtime_s(&parts, &time);
#else
    localtime_r(&time, &parts);
#endif
    return parts;
}

} // namespace

WriteLine& WriteLine::text(std::string_view value) {
    separate();
    line_ += '"';
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n')
            continue;
        line_ += value[i] == '\r' || value[i] == '\n' ? ' ' : value[i];
    }
    line_ += '"';
    return *this;
}

WriteLine& WriteLine::number(long value) {
    separate();
    line_ += std::to_string(value);
    return *this;
}

WriteLine& WriteLine::dateTime(std::chrono::system_clock::time_point value) {
    separate();
    const std::tm parts = localTime(std::chrono::system_clock::to_time_t(value));
    std::array<char, 32> literal{};
    const std::size_t length = std::strftime(literal.data(), literal.size(), "#%Y-%m-%d %H:%M:%S#", &parts);
    line_.append(literal.data(), length);
    return *this;
}

void WriteLine::separate() {
    if (!line_.empty())
        line_ += ',';
}

std::string StripQuotes(std::string_view text) {
    std::string stripped(text);
    std::erase(stripped, '"');
    return stripped;
}
