#include "tests/stats/compare/PlainSelection.h"

#include <algorithm>
#include <cmath>

namespace {

/// `*` any run, `?` one character; a text without them is compared as any other.
bool fitsFrom(const std::string& text, std::size_t at, const std::string& pattern, std::size_t from) {
    if (from == pattern.size())
        return at == text.size();
    if (pattern[from] == '*')
        return fitsFrom(text, at, pattern, from + 1) || (at < text.size() && fitsFrom(text, at + 1, pattern, from));
    return at < text.size() && (pattern[from] == '?' || pattern[from] == text[at]) &&
           fitsFrom(text, at + 1, pattern, from + 1);
}

std::string upperOf(const std::string& text) {
    std::string upper;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isSmallLatin = !upper.empty() && upper.back() == '\xC3' && byte >= 0xA0;
        upper += static_cast<char>((c >= 'a' && c <= 'z') || isSmallLatin ? byte - 0x20 : byte);
    }
    return upper;
}

bool fits(const OptionalText& text, const std::string& pattern) {
    if (!text)
        return false;
    if (pattern.find_first_of("*?") == std::string::npos)
        return same(text, pattern);
    return fitsFrom(upperOf(*text), 0, upperOf(pattern), 0);
}

bool fitsTime(const ProjectCall& call, const ReportParameters& parameters) {
    const int second = (call.hour * 60 + call.minute) * 60;
    const int from = static_cast<int>(std::lround(parameters.DTStartTime[0].days * 86400));
    const int to = static_cast<int>(std::lround(parameters.DTStartTime[1].days * 86400));
    if (parameters.ChkOverNight && from > to)
        return (call.date < parameters.DTEnd.days && second > from) ||
               (second <= to && call.date > parameters.DTStart.days);
    if (from == to || (from == 0 && to >= 86399))
        return true;
    return from < to ? second >= from && second <= to : second >= from || second <= to;
}

bool fitsInbound(const ProjectCall& call, const ReportParameters& parameters) {
    if (parameters.OptInbound == 1 && !parameters.CmbInbound.empty())
        return fits(call.called, parameters.CmbInbound);
    if (parameters.OptInbound != 2)
        return true;
    if (parameters.cmbCG == "Sales")
        return isOneOf(call.called, salesNumbers);
    return parameters.cmbCG != "Not Allocated" || isOneOf(call.called, unallocatedNumbers);
}

bool fitsAnswerPoint(const ProjectCall& call, const ReportParameters& parameters) {
    if (parameters.OptAnswer == 1 && !parameters.CmbAnswer.empty())
        return fits(call.answerPoint, parameters.CmbAnswer);
    if (parameters.OptAnswer != 2)
        return true;
    if (parameters.CmbAnswerGroup == "North")
        return isOneOf(call.answerPoint, northPoints);
    return parameters.CmbAnswerGroup != "Not Allocated" || isOneOf(call.answerPoint, unallocatedPoints);
}

} // namespace

std::string plainFold(const std::string& text) {
    std::string folded = upperOf(text);
    while (!folded.empty() && folded.back() == ' ')
        folded.pop_back();
    return folded;
}

bool same(const OptionalText& a, const std::string& b) {
    return a && plainFold(*a) == plainFold(b);
}

bool isOneOf(const OptionalText& text, const std::vector<std::string>& list) {
    return std::any_of(list.begin(), list.end(), [&](const std::string& one) { return same(text, one); });
}

bool isSelected(const ProjectCall& call, const ReportParameters& parameters) {
    return call.date && *call.date >= parameters.DTStart.days && *call.date <= parameters.DTEnd.days &&
           fitsTime(call, parameters) && fitsInbound(call, parameters) && fitsAnswerPoint(call, parameters) &&
           (parameters.cmbDestinationNo.empty() || fits(call.destination, parameters.cmbDestinationNo));
}
