#include "sample/geography/Nations.h"

#include "sample/geography/EmbeddedCsv.h"
#include "sample/geography/NationalGrid.h"
#include "sample/geography/PlaneGeometry.h"

#include <algorithm>

namespace sample {

namespace {

Nation nationNamed(const CsvRecord& record) {
    const auto name = std::find(nationNames.begin(), nationNames.end(), record.fields[0]);
    if (name == nationNames.end())
        record.fail("\"" + record.fields[0] + "\" is not a nation");
    return static_cast<Nation>(name - nationNames.begin());
}

} // namespace

Nations::Nations(const Coast& coast) : coast_(coast) {
    for (const CsvRecord& record : readCsv(nationsCsv(), "Nation,Lat,Lon")) {
        const Nation nation = nationNamed(record);
        if (outlines_.empty() || outlines_.back().nation != nation)
            outlines_.push_back({nation, {}});
        outlines_.back().ring.push_back(toMap({record.number(1), record.number(2)}));
    }
    for (Outline& outline : outlines_)
        outline.ring.push_back(outline.ring.front());
}

Nation Nations::at(int ring, MapPoint place) const {
    const std::string& country = coast_.country(ring);
    if (country == republicOfIreland)
        return Nation::RepublicOfIreland;
    if (country == "Isle Of Man")
        return Nation::IsleOfMan;
    if (country == "Jersey" || country == "Guernsey")
        return Nation::ChannelIslands;
    for (const Outline& outline : outlines_)
        if (ringHolds(outline.ring, place))
            return outline.nation;
    return Nation::England;
}

} // namespace sample
