#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// Whether a pattern of Like holds any of `* ? # [`; without them it is a plain comparison.
bool hasWildcards(std::string_view pattern);

/// A pattern of Like, read once: `*` any run, `?` one character, `#` one digit, `[a-z]` one of a set, `[!a-z]` none of
/// it. Case does not count. A `[` without its `]` stands for itself.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    /// Throws RuntimeError 3360 where a long text would take too many comparisons.
    bool matches(std::string_view text) const;

private:
    struct Range {
        char32_t first, last;
    };
    struct Element {
        enum class Kind { Character, AnyRun, AnyOne, AnyDigit, Set } kind;
        char32_t character = 0;
        bool negated = false;
        std::vector<Range> ranges;
    };
    /// The common shapes, which need no general matching: x, x*, *x and *x* with plain ASCII for x.
    enum class Shape { General, Plain, Prefix, Suffix, Inside };

    bool accepts(const Element& element, char32_t c) const;
    void readSet(std::string_view& rest);
    void readElements(std::string_view pattern);
    void readShape(std::string_view pattern);
    bool isInside(std::string_view text) const;
    bool matchesElements(std::string_view text) const;

    std::vector<Element> elements_;
    Shape shape_ = Shape::General;
    std::string plain_; ///< the x of a shape; in capitals unless the shape is Plain
};

/// Several patterns, of which a text must fit one.
class LikePatterns {
public:
    /// Takes what joinedPatterns made.
    explicit LikePatterns(std::string_view joined);
    bool anyMatches(std::string_view text) const;

private:
    std::vector<LikePattern> patterns_;
};
std::string joinedPatterns(const std::vector<std::string>& patterns);

/// `text Like pattern`.
bool isLike(std::string_view text, std::string_view pattern);
/// `text Like prefix & '*'`, where the prefix mostly holds no wildcards.
bool begins(std::string_view text, std::string_view prefix);

} // namespace jet
