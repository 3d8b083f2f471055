#include "sample/installation/ReferenceCodes.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>

namespace sample {

namespace {

constexpr std::size_t digitsOfNationalNumber = 11; // with the leading 0

struct AbroadCode {
    std::string_view dialling; // country code, in Ireland with the area's
    std::string_view name;
    int furtherDigits;
    double weight;
};

constexpr std::array<AbroadCode, 5> ireland{{
    {"3531", "Dublin", 7, 0.52},
    {"35321", "Cork", 7, 0.17},
    {"35361", "Limerick", 6, 0.11},
    {"35391", "Galway", 6, 0.12},
    {"35351", "Waterford", 6, 0.08},
}};

constexpr std::array<AbroadCode, 14> overseas{{
    {"1", "USA AND CANADA", 9, 0.19},
    {"31", "NETHERLANDS", 9, 0.08},
    {"32", "BELGIUM", 8, 0.05},
    {"33", "FRANCE", 9, 0.16},
    {"34", "SPAIN", 9, 0.14},
    {"351", "PORTUGAL", 9, 0.04},
    {"357", "CYPRUS", 8, 0.03},
    {"39", "ITALY", 9, 0.06},
    {"41", "SWITZERLAND", 9, 0.03},
    {"47", "NORWAY", 8, 0.02},
    {"48", "POLAND", 9, 0.05},
    {"49", "GERMANY", 9, 0.09},
    {"61", "AUSTRALIA", 9, 0.04},
    {"91", "INDIA", 9, 0.02},
}};

struct PlacelessCode {
    std::string_view code;
    CallerKind kind;
    std::string_view callingPrefix;
    int furtherDigits;
};

constexpr std::array<PlacelessCode, 5> placeless{{
    {"MOBILE", CallerKind::Mobile, "07", 9},
    {"VOIP", CallerKind::Voip, "056", 8},
    {"NO CLI", CallerKind::Withheld, "", 0},
    {"OLO", CallerKind::OtherNetwork, "055", 8},
    {"UNTRACEAB", CallerKind::Untraceable, "", 0},
}};

/// Digital main switching units: here one for all codes with the same first three digits.
std::string dmsuOf(const std::string& code) {
    return "DMSU " + code.substr(0, 3);
}

/// A code all of whose columns hold the same name.
ReferenceCode namedCode(std::string_view code, CallerKind kind, const std::string& name) {
    ReferenceCode made;
    made.code = code;
    made.kind = kind;
    made.exchange = made.csg = made.dmsu = made.postCode = made.tvArea = name;
    made.weight = 1;
    return made;
}

ReferenceCode geographicCode(const Geography& geography, const std::vector<std::string>& csgNumbers,
                             std::size_t index) {
    const CallCode& from = geography.codes[index];
    ReferenceCode made;
    made.code = from.code;
    made.exchange = geography.exchangeAreas[static_cast<std::size_t>(from.exchange)].name;
    made.csg = csgNumbers[static_cast<std::size_t>(from.csg)];
    made.dmsu = dmsuOf(from.code);
    made.postCode = geography.postcodeDistricts[static_cast<std::size_t>(from.postcodeDistrict)].name;
    made.tvArea = geography.tvRegions[static_cast<std::size_t>(from.tvRegion)].name;
    made.callingPrefix = "0" + from.code;
    made.furtherDigits = static_cast<int>(digitsOfNationalNumber - made.callingPrefix.size());
    made.weight = from.weight;
    made.geographyCode = static_cast<int>(index);
    return made;
}

} // namespace

std::vector<std::string> numberCsgs(const Geography& geography) {
    // People of each CSG by the first four digits of their codes.
    std::vector<std::map<std::string, double>> people(geography.csgs.size());
    for (const CallCode& code : geography.codes)
        people[static_cast<std::size_t>(code.csg)][code.code.substr(0, 4)] += code.weight;

    std::set<std::string> given;
    std::vector<std::string> numbers(geography.csgs.size());
    for (std::size_t csg = 0; csg < numbers.size(); ++csg) {
        if (people[csg].empty()) {
            numbers[csg] = geography.csgs[csg].name;
            continue;
        }
        const auto largest = std::max_element(people[csg].begin(), people[csg].end(),
                                              [](const auto& l, const auto& r) { return l.second < r.second; });
        int number = std::stoi(largest->first);
        while (!given.insert(std::to_string(number)).second)
            ++number;
        numbers[csg] = std::to_string(number);
    }
    return numbers;
}

std::vector<ReferenceCode> makeReferenceCodes(const Geography& geography) {
    const std::vector<std::string> csgNumbers = numberCsgs(geography);
    std::vector<ReferenceCode> codes;
    codes.reserve(geography.codes.size() + ireland.size() + overseas.size() + placeless.size());
    for (std::size_t i = 0; i < geography.codes.size(); ++i)
        codes.push_back(geographicCode(geography, csgNumbers, i));
    for (const AbroadCode& area : ireland) {
        ReferenceCode& made = codes.emplace_back(namedCode(area.dialling, CallerKind::Ireland, republicOfIreland));
        made.callingPrefix = "00" + std::string(area.dialling);
        made.furtherDigits = area.furtherDigits;
        made.weight = area.weight;
    }
    for (const AbroadCode& country : overseas) {
        ReferenceCode& made = codes.emplace_back(
            namedCode("." + std::string(country.dialling), CallerKind::Overseas, "." + std::string(country.name)));
        made.csg = "0";
        made.callingPrefix = "00" + std::string(country.dialling);
        made.furtherDigits = country.furtherDigits;
        made.weight = country.weight;
    }
    for (const PlacelessCode& from : placeless) {
        ReferenceCode& made = codes.emplace_back(namedCode(from.code, from.kind, std::string(from.code)));
        made.callingPrefix = from.callingPrefix;
        made.furtherDigits = from.furtherDigits;
    }
    return codes;
}

} // namespace sample
