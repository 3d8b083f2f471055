#pragma once

#include "sample/geography/SeedPlaces.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sample {

/// Gives each exchange of `seeds` the digits with which all its numbers begin: the dialling code of its town and a few
/// more, six or seven in all. None begins with another.
std::vector<std::string> numberExchanges(const Gazetteer& gazetteer, const Seeds& seeds, std::uint64_t seed);

/// What a part of the population has: its exchange and its postcode district.
struct Overlap {
    int exchange = 0;
    int district = 0;
    double people = 0;
};

/// Divides the population of each exchange among the districts that it reaches into, as ranges of numbers. Every
/// exchange and every district that occurs in `overlaps` gets at least one code. Fills code, exchange, postcodeDistrict
/// and weight; ordered by code.
std::vector<CallCode> allotCodes(std::span<const std::string> prefixes, std::vector<Overlap> overlaps);

} // namespace sample
