#include "sample/geography/Numbering.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>

namespace sample {

namespace {

/// The prefixes given out so far, and the dialling codes, which are taken for longer numbers of their own.
class PrefixBook {
public:
    explicit PrefixBook(const Gazetteer& gazetteer) {
        for (const Town& town : gazetteer.towns)
            dialling_.insert(town.dialling);
    }

    /// Whether no other number begins with the prefix and the prefix begins with no other.
    bool isFree(const std::string& prefix, const std::string& ownDialling) const {
        for (std::size_t length = ownDialling.size() + 1; length <= prefix.size(); ++length)
            if (dialling_.contains(prefix.substr(0, length)))
                return false;
        return std::none_of(given_.begin(), given_.end(), [&](const std::string& other) {
            return other.starts_with(prefix) || prefix.starts_with(other);
        });
    }

    void give(const std::string& prefix) { given_.push_back(prefix); }

private:
    std::set<std::string> dialling_;
    std::vector<std::string> given_;
};

/// The digits that may follow a dialling code, in random order: so many that the whole is at least six long and half of
/// them stay unused. A subscriber's number begins with neither 0 nor 1, in London with 7 or 8.
std::vector<int> numbersBehind(const std::string& dialling, std::size_t exchanges, SeededRandom& random) {
    const bool london = dialling == "20";
    const int first = london ? 7 : 2;
    const int past = london ? 9 : 10;
    int power = 1;
    for (std::size_t length = dialling.size() + 1;
         length < 6 || static_cast<std::size_t>((past - first) * power) < 2 * exchanges; ++length)
        power *= 10;
    std::vector<int> numbers(static_cast<std::size_t>((past - first) * power));
    std::iota(numbers.begin(), numbers.end(), first * power);
    for (std::size_t i = numbers.size(); i > 1; --i)
        std::swap(numbers[i - 1], numbers[random.below(i)]);
    return numbers;
}

/// The share of an exchange below which a district that has other exchanges is left out.
constexpr double leastShare = 0.04;

std::vector<Overlap> worthACode(std::vector<Overlap> overlaps) {
    std::map<int, double> people;
    std::map<int, int> largestOfDistrict;
    std::map<int, int> largestOfExchange;
    const auto keepLargest = [&](std::map<int, int>& largest, int key, int candidate) {
        const auto [entry, isNew] = largest.try_emplace(key, candidate);
        if (!isNew && overlaps[static_cast<std::size_t>(candidate)].people >
                          overlaps[static_cast<std::size_t>(entry->second)].people)
            entry->second = candidate;
    };
    for (std::size_t i = 0; i < overlaps.size(); ++i) {
        people[overlaps[i].exchange] += overlaps[i].people;
        keepLargest(largestOfDistrict, overlaps[i].district, static_cast<int>(i));
        keepLargest(largestOfExchange, overlaps[i].exchange, static_cast<int>(i));
    }
    std::vector<Overlap> kept;
    for (std::size_t i = 0; i < overlaps.size(); ++i) {
        const Overlap& overlap = overlaps[i];
        if (overlap.people >= leastShare * people[overlap.exchange] ||
            largestOfDistrict[overlap.district] == static_cast<int>(i) ||
            largestOfExchange[overlap.exchange] == static_cast<int>(i))
            kept.push_back(overlap);
    }
    return kept;
}

/// The codes of one exchange: `prefix` and one digit more, or two where ten do not suffice.
void allotExchange(const std::string& prefix, std::span<const Overlap> overlaps, std::vector<CallCode>& codes) {
    constexpr double peoplePerCode = 9000;
    std::vector<int> counts;
    for (const Overlap& overlap : overlaps)
        counts.push_back(1 + static_cast<int>(overlap.people / peoplePerCode));
    const int total = std::accumulate(counts.begin(), counts.end(), 0);
    const int step = std::max(1, (total > 10 ? 90 : 9) / total);
    int number = total > 10 ? 10 : 0;
    for (std::size_t i = 0; i < overlaps.size(); ++i) {
        for (int k = 0; k < counts[i]; ++k, number += step) {
            CallCode& code = codes.emplace_back();
            code.code = prefix + std::to_string(number);
            code.exchange = overlaps[i].exchange;
            code.postcodeDistrict = overlaps[i].district;
            code.weight = overlaps[i].people / counts[i];
        }
    }
}

} // namespace

std::vector<std::string> numberExchanges(const Gazetteer& gazetteer, const Seeds& seeds, std::uint64_t seed) {
    std::map<std::string, std::vector<std::size_t>> byDialling;
    for (std::size_t i = 0; i < seeds.exchanges.size(); ++i)
        byDialling[gazetteer.towns[static_cast<std::size_t>(seeds.exchanges[i].town)].dialling].push_back(i);

    SeededRandom random(seed);
    PrefixBook book(gazetteer);
    std::vector<std::string> prefixes(seeds.exchanges.size());
    for (const auto& [dialling, exchanges] : byDialling) {
        const std::vector<int> numbers = numbersBehind(dialling, exchanges.size(), random);
        auto number = numbers.begin();
        for (const std::size_t exchange : exchanges) {
            while (number != numbers.end() && !book.isFree(dialling + std::to_string(*number), dialling))
                ++number;
            if (number == numbers.end())
                throw std::runtime_error("too many exchanges have the dialling code 0" + dialling);
            prefixes[exchange] = dialling + std::to_string(*number);
            book.give(prefixes[exchange]);
        }
    }
    return prefixes;
}

std::vector<CallCode> allotCodes(std::span<const std::string> prefixes, std::vector<Overlap> overlaps) {
    overlaps = worthACode(std::move(overlaps));
    std::stable_sort(overlaps.begin(), overlaps.end(), [](const Overlap& l, const Overlap& r) {
        return l.exchange != r.exchange ? l.exchange < r.exchange : l.people > r.people;
    });
    std::vector<CallCode> codes;
    for (auto begin = overlaps.begin(); begin != overlaps.end();) {
        const auto end =
            std::find_if(begin, overlaps.end(), [&](const Overlap& o) { return o.exchange != begin->exchange; });
        allotExchange(prefixes[static_cast<std::size_t>(begin->exchange)], {begin, end}, codes);
        begin = end;
    }
    double total = 0;
    for (const CallCode& code : codes)
        total += code.weight;
    for (CallCode& code : codes)
        code.weight /= total;
    std::sort(codes.begin(), codes.end(), [](const CallCode& l, const CallCode& r) { return l.code < r.code; });
    return codes;
}

} // namespace sample
