#include "map/ClassBreaks.h"

#include "core/RuntimeError.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

struct ScaleStep {
    double below; ///< the first step that the maximum lies below gives the top
    double top;
};

// Eighths of nearly every top are round numbers. Between 600000 and 800000 the scale ends early on purpose: the open
// band takes all that is large.
constexpr std::array ScaleLadder{
    ScaleStep{0.1, 0.13},      ScaleStep{0.2, 0.25},
    ScaleStep{0.25, 0.3},      ScaleStep{0.5, 0.4},
    ScaleStep{0.75, 0.7},      ScaleStep{1, 1},
    ScaleStep{3, 2},           ScaleStep{5, 3},
    ScaleStep{8, 6},           ScaleStep{10, 8},
    ScaleStep{20, 16},         ScaleStep{30, 24},
    ScaleStep{40, 32},         ScaleStep{60, 56},
    ScaleStep{80, 72},         ScaleStep{100, 96},
    ScaleStep{150, 136},       ScaleStep{200, 184},
    ScaleStep{300, 240},       ScaleStep{400, 320},
    ScaleStep{500, 440},       ScaleStep{600, 560},
    ScaleStep{800, 720},       ScaleStep{1000, 960},
    ScaleStep{1500, 1360},     ScaleStep{2000, 1840},
    ScaleStep{3000, 2400},     ScaleStep{4000, 3200},
    ScaleStep{5000, 4400},     ScaleStep{6000, 5600},
    ScaleStep{8000, 7200},     ScaleStep{10000, 9600},
    ScaleStep{20000, 18400},   ScaleStep{30000, 24000},
    ScaleStep{40000, 32000},   ScaleStep{50000, 44000},
    ScaleStep{60000, 56000},   ScaleStep{80000, 72000},
    ScaleStep{100000, 96000},  ScaleStep{200000, 184000},
    ScaleStep{300000, 240000}, ScaleStep{400000, 320000},
    ScaleStep{500000, 440000}, ScaleStep{600000, 560000},
    ScaleStep{800000, 72000},  ScaleStep{1000000, 960000},
};

constexpr double SmallestScale = 0.05; ///< maxima below it get a top of their own
constexpr int Steps = 8;
constexpr double OpenEnd = 100000000;

/// The shortest text of a computed number, without the dust of binary fractions behind the fifteenth digit.
std::string tidyText(double number) {
    char digits[64];
    const int length = std::snprintf(digits, sizeof digits, "%.14e", number);
    double tidy = number;
    std::from_chars(digits, digits + length, tidy);
    return shortestText(tidy);
}

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

std::optional<double> parseNumber(std::string_view text) {
    text = trimmed(text);
    double number = 0.0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failed != std::errc{} || end != text.data() + text.size() || !std::isfinite(number))
        return {};
    return number;
}

double numberOf(std::string_view text) {
    if (const auto number = parseNumber(text))
        return *number;
    throw RuntimeError(13, "Type mismatch: the class break \"" + std::string(text) + "\" is no number");
}

Money moneyOf(std::string_view text) {
    return Money::fromDouble(numberOf(text));
}

bool isOneWide(Money from, Money to) {
    constexpr std::int64_t one = 10000;
    return to.tenThousandths - one == from.tenThousandths;
}

/// The largest number that a band below `upper` names: one unit of the last place less.
std::string lastInside(std::string_view upper, bool wholeSteps) {
    const std::string_view digits = trimmed(upper);
    const double number = numberOf(digits);
    if (const std::size_t point = digits.find('.'); point != std::string_view::npos)
        return tidyText(number - std::pow(10.0, -static_cast<double>(digits.size() - point - 1)));
    return tidyText(wholeSteps ? number - 1.0 : number - 0.1);
}

} // namespace

double topOfScale(double maximum) {
    if (maximum < SmallestScale)
        return std::nearbyint(maximum * 0.66 * 1000.0) / 1000.0;
    for (const ScaleStep& step : ScaleLadder) {
        if (maximum < step.below)
            return step.top;
    }
    return maximum;
}

std::string bandList(double maximum) {
    const double top = topOfScale(maximum);
    if (top == 8)
        return "1, 3, 7";
    if (top == 16)
        return "1, 5, 10, 15";
    std::string list = top >= 60 ? "1, 5," : "";
    for (int step = 1; step <= Steps; ++step)
        list += (step > 1 ? "," : "") + tidyText(top * step / Steps);
    return list;
}

std::vector<std::string> splitBandList(std::string_view list) {
    std::vector<std::string> texts;
    while (!list.empty()) {
        const std::size_t comma = list.find(',');
        texts.emplace_back(list.substr(0, comma));
        list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    }
    return texts;
}

bool isNumericText(std::string_view text) {
    return parseNumber(text).has_value();
}

std::vector<NumericBand> numericBands(const std::vector<std::string>& breaks, std::string_view unitSign) {
    std::vector<NumericBand> bands;
    if (breaks.empty())
        return bands;
    const std::string sign(unitSign);
    const bool wholeSteps = numberOf(breaks.back()) > static_cast<double>(breaks.size() - 1);
    std::string previous = "0";
    for (const std::string& current : breaks) {
        const Money from = moneyOf(previous);
        const Money to = moneyOf(current);
        if (isOneWide(from, to))
            bands.push_back({sign + previous, from, from});
        else
            bands.push_back({sign + previous + " to " + sign + lastInside(current, wholeSteps), from, to});
        previous = current;
    }
    bands.push_back({sign + previous + " + ", previous, Money::fromDouble(OpenEnd)});
    return bands;
}
