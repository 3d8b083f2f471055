#include "SharedGeography.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace sample;

namespace {

/// Everything in a geography, with all digits.
std::string written(const Geography& geography) {
    std::ostringstream text;
    text << std::hexfloat;
    for (const Boundary& boundary : boundaries(geography)) {
        text << boundary.name << '\n';
        for (const Area& area : boundary.areas) {
            text << area.name << ' ' << area.label.x << ' ' << area.label.y << '\n';
            for (const Ring& ring : area.rings)
                for (const MapPoint& p : ring.vertices)
                    text << p.x << ' ' << p.y << '\n';
        }
    }
    for (const std::string& prefix : geography.exchangePrefix)
        text << prefix << '\n';
    for (const CallCode& code : geography.codes)
        text << code.code << ' ' << code.exchange << ' ' << code.csg << ' ' << code.postcodeDistrict << ' '
             << code.tvRegion << ' ' << code.weight << '\n';
    return text.str();
}

} // namespace

TEST(Repeatability, SeedDecidesEverything) {
    const std::string first = written(sharedGeography());
    EXPECT_TRUE(first == written(makeGeography(1))) << "the same seed gave something else";
    EXPECT_FALSE(first == written(makeGeography(2))) << "another seed gave the same";
}
