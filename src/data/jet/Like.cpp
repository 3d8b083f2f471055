#include "data/jet/Like.h"

#include "core/RuntimeError.h"
#include "data/jet/Characters.h"
#include "data/types/Value.h"

#include <algorithm>
#include <charconv>

namespace jet {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char32_t upperAscii(char32_t c) {
    return c >= 'a' && c <= 'z' ? c - 0x20 : c;
}

/// How many bytes from `text` on are those of `upper`, which is ASCII in capitals.
std::size_t sharedWithoutCase(const char* text, const std::string& upper) {
    for (std::size_t i = 0; i < upper.size(); ++i) {
        const char c = text[i];
        if ((c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c) != upper[i])
            return i;
    }
    return upper.size();
}
bool sameWithoutCase(const char* text, const std::string& upper) {
    return sharedWithoutCase(text, upper) == upper.size();
}

/// Comparisons of characters that one text may take: a long pattern that nearly fits a long text everywhere would
/// otherwise keep the program for hours.
class Effort {
public:
    explicit Effort(std::string_view text) : most_(5'000'000 + 8 * text.size()) {}
    void add(std::size_t comparisons) {
        spent_ += comparisons;
        if (spent_ > most_)
            throw RuntimeError(3360, "The pattern of Like is too complex for so long a text");
    }

private:
    std::size_t spent_ = 0;
    std::size_t most_;
};

} // namespace

bool hasWildcards(std::string_view pattern) {
    return pattern.find_first_of("*?#[") != std::string_view::npos;
}

LikePattern::LikePattern(std::string_view pattern) {
    readShape(pattern);
    if (shape_ == Shape::General)
        readElements(pattern);
}

void LikePattern::readShape(std::string_view pattern) {
    if (!hasWildcards(pattern)) {
        shape_ = Shape::Plain;
        plain_ = pattern;
        return;
    }
    const bool before = pattern.starts_with('*');
    const bool behind = pattern.size() > 1 && pattern.ends_with('*');
    if (before)
        pattern.remove_prefix(1);
    if (behind)
        pattern.remove_suffix(1);
    if (pattern.empty() || hasWildcards(pattern) || !isAscii(pattern))
        return;
    plain_ = upperText(pattern);
    shape_ = before && behind ? Shape::Inside : (before ? Shape::Suffix : Shape::Prefix);
}

void LikePattern::readElements(std::string_view pattern) {
    const std::string upper = upperText(pattern);
    std::string_view rest = upper;
    while (!rest.empty()) {
        const char32_t c = takeCharacter(rest);
        if (c == '*') {
            if (elements_.empty() || elements_.back().kind != Element::Kind::AnyRun)
                elements_.push_back({Element::Kind::AnyRun, 0, false, {}});
        } else if (c == '?') {
            elements_.push_back({Element::Kind::AnyOne, 0, false, {}});
        } else if (c == '#') {
            elements_.push_back({Element::Kind::AnyDigit, 0, false, {}});
        } else if (c == '[' && rest.find(']') != std::string_view::npos) {
            readSet(rest);
        } else {
            elements_.push_back({Element::Kind::Character, c, false, {}});
        }
    }
}

/// Reads up to the closing bracket; the opening one is taken already. An empty set stands for nothing at all.
void LikePattern::readSet(std::string_view& rest) {
    Element set{Element::Kind::Set, 0, false, {}};
    std::string_view inside = rest.substr(0, rest.find(']'));
    rest.remove_prefix(inside.size() + 1);
    if (inside.empty())
        return;
    if (inside.front() == '!' && inside.size() > 1) {
        set.negated = true;
        inside.remove_prefix(1);
    }
    while (!inside.empty()) {
        Range range{takeCharacter(inside), 0};
        range.last = range.first;
        if (inside.size() > 1 && inside.front() == '-') {
            inside.remove_prefix(1);
            range.last = takeCharacter(inside);
        }
        set.ranges.push_back(range);
    }
    elements_.push_back(std::move(set));
}

bool LikePattern::accepts(const Element& element, char32_t c) const {
    switch (element.kind) {
    case Element::Kind::Character:
        return element.character == c;
    case Element::Kind::AnyOne:
        return true;
    case Element::Kind::AnyDigit:
        return c >= '0' && c <= '9';
    default:
        return std::any_of(element.ranges.begin(), element.ranges.end(),
                           [c](const Range& range) { return c >= range.first && c <= range.last; }) != element.negated;
    }
}

bool LikePattern::matches(std::string_view text) const {
    switch (shape_) {
    case Shape::Plain:
        return equalText(text, plain_);
    case Shape::Prefix:
        return text.size() >= plain_.size() && sameWithoutCase(text.data(), plain_);
    case Shape::Suffix:
        return text.size() >= plain_.size() && sameWithoutCase(text.data() + text.size() - plain_.size(), plain_);
    case Shape::Inside:
        return isInside(text);
    case Shape::General:
        break;
    }
    return matchesElements(text);
}

bool LikePattern::isInside(std::string_view text) const {
    Effort effort(text);
    for (std::size_t at = 0; at + plain_.size() <= text.size(); ++at) {
        const std::size_t shared = sharedWithoutCase(text.data() + at, plain_);
        if (shared == plain_.size())
            return true;
        effort.add(shared);
    }
    return false;
}

bool LikePattern::matchesElements(std::string_view text) const {
    std::string upper;
    const bool ascii = isAscii(text);
    if (!ascii) {
        upper = upperText(text);
        text = upper;
    }
    // On a mismatch the last run takes one character more; earlier runs need not be tried again.
    std::size_t element = 0;
    std::size_t runElement = elements_.size();
    std::string_view runRest;
    Effort effort(text);
    while (true) {
        effort.add(1);
        if (element < elements_.size() && elements_[element].kind == Element::Kind::AnyRun) {
            runElement = element++;
            runRest = text;
            if (element == elements_.size())
                return true;
            continue;
        }
        if (text.empty()) {
            if (element == elements_.size())
                return true;
        } else if (element < elements_.size()) {
            std::string_view after = text;
            const char32_t c = upperAscii(takeCharacter(after));
            if (accepts(elements_[element], c)) {
                text = after;
                ++element;
                continue;
            }
        }
        if (runElement == elements_.size() || runRest.empty())
            return false;
        takeCharacter(runRest);
        text = runRest;
        element = runElement + 1;
    }
}

/// Each pattern behind its length: "2:a*3:b?c".
std::string joinedPatterns(const std::vector<std::string>& patterns) {
    std::string joined;
    for (const std::string& pattern : patterns)
        joined += std::to_string(pattern.size()) + ":" + pattern;
    return joined;
}

LikePatterns::LikePatterns(std::string_view joined) {
    while (!joined.empty()) {
        std::size_t length = 0;
        std::from_chars(joined.data(), joined.data() + joined.size(), length);
        joined.remove_prefix(std::min(joined.find(':'), joined.size() - 1) + 1);
        patterns_.emplace_back(joined.substr(0, length));
        joined.remove_prefix(std::min(length, joined.size()));
    }
}

bool LikePatterns::anyMatches(std::string_view text) const {
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [&](const LikePattern& pattern) { return pattern.matches(text); });
}

bool isLike(std::string_view text, std::string_view pattern) {
    return hasWildcards(pattern) ? LikePattern(pattern).matches(text) : equalText(text, pattern);
}

bool begins(std::string_view text, std::string_view prefix) {
    if (hasWildcards(prefix))
        return LikePattern(std::string(prefix) + '*').matches(text);
    const std::size_t shared = std::min(text.size(), prefix.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const auto a = static_cast<unsigned char>(text[i]);
        const auto b = static_cast<unsigned char>(prefix[i]);
        if ((a | b) >= 0x80)
            return upperText(text.substr(i)).starts_with(upperText(prefix.substr(i)));
        if (upperAscii(a) != upperAscii(b))
            return false;
    }
    return prefix.size() <= text.size();
}

} // namespace jet
