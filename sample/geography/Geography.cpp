#include "sample/geography/Geography.h"

#include "sample/geography/Dissolve.h"
#include "sample/geography/FaceMesh.h"
#include "sample/geography/FaceSearch.h"
#include "sample/geography/Gazetteer.h"
#include "sample/geography/Growth.h"
#include "sample/geography/Labels.h"
#include "sample/geography/Numbering.h"
#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeedPlaces.h"
#include "sample/geography/SeededRandom.h"
#include "sample/geography/Sites.h"
#include "sample/geography/Voronoi.h"

#include <algorithm>
#include <limits>
#include <map>
#include <utility>

namespace sample {

namespace {

/// What the seed is mixed with for each use, so that one list made longer does not change all others.
enum class Use : std::uint64_t { Places, Sites, Lines, Districts, Exchanges, Csgs, Numbers };

std::uint64_t seedFor(std::uint64_t seed, Use use) {
    return mixAll(seed, static_cast<std::uint64_t>(use));
}

class GeographyBuilder {
public:
    explicit GeographyBuilder(std::uint64_t seed)
        : seed_(seed), nations_(coast_), gazetteer_(readGazetteer(coast_, nations_)),
          seeds_(placeSeeds(gazetteer_, coast_, nations_, seedFor(seed, Use::Places))),
          sites_(scatterSites(coast_, seeds_.places, seedFor(seed, Use::Sites))), mesh_(makeMesh()),
          graph_(makeFaceGraph(mesh_, sites_, nations_)), search_(mesh_) {}

    Geography build() {
        growDistricts();
        growExchanges();
        growCsgs();
        makeRegions();
        makeBorders();
        makeCodes();
        return std::move(geography_);
    }

private:
    FaceMesh makeMesh() const {
        std::vector<MapPoint> places;
        for (const Site& site : sites_)
            places.push_back(site.place);
        return makeFaceMesh(coast_, makeVoronoi(places), sites_, seedFor(seed_, Use::Lines));
    }

    /// Grows areas from their seeds; gives the label of each face and notes the seeds' faces.
    std::vector<int> grow(const std::vector<SeedArea>& areas, Use use, std::vector<int>& seedFaces) const {
        for (const SeedArea& area : areas)
            seedFaces.push_back(search_.at(seeds_.places[static_cast<std::size_t>(area.place)]));
        return growAreas(graph_, seedFaces, seedFor(seed_, use));
    }

    std::vector<Area> makeAreas(const std::vector<int>& faceLabels, std::vector<std::string> names) const {
        std::vector<std::vector<Ring>> rings = dissolve(mesh_, faceLabels, static_cast<int>(names.size()));
        std::vector<Area> areas;
        for (std::size_t i = 0; i < names.size(); ++i) {
            const MapPoint label = labelPoint(geos_, rings[i]);
            areas.push_back({std::move(names[i]), std::move(rings[i]), label});
        }
        return areas;
    }

    template<typename Named>
    static std::vector<std::string> namesOf(const std::vector<Named>& list) {
        std::vector<std::string> names;
        for (const Named& item : list)
            names.push_back(item.name);
        names.emplace_back(republicOfIreland);
        return names;
    }

    void growDistricts() {
        std::vector<int> seedFaces;
        districtOfFace_ = grow(seeds_.districts, Use::Districts, seedFaces);
        geography_.postcodeDistricts = makeAreas(districtOfFace_, namesOf(seeds_.districts));
    }

    void growExchanges() {
        exchangeOfFace_ = grow(seeds_.exchanges, Use::Exchanges, exchangeFaces_);
        geography_.exchangeAreas = makeAreas(exchangeOfFace_, namesOf(seeds_.exchanges));
    }

    /// A CSG grows over whole exchange areas, from the one that it is named after.
    void growCsgs() {
        const LandGraph exchanges = joinPieces(graph_, exchangeOfFace_, exchangeFaces_);
        csgOfExchange_ = growAreas(exchanges, csgSeeds(exchanges), seedFor(seed_, Use::Csgs));
        csgOfExchange_.push_back(static_cast<int>(gazetteer_.csgs.size())); // the Republic
        geography_.csgs = makeAreas(relabel(exchangeOfFace_, csgOfExchange_), namesOf(gazetteer_.csgs));
    }

    /// The nearest exchange of the same island, or at least the same nation, that is not taken yet.
    std::vector<int> csgSeeds(const LandGraph& exchanges) const {
        std::vector<int> chosen;
        std::vector<bool> taken(exchanges.pieces.size(), false);
        for (const CsgTown& csg : gazetteer_.csgs) {
            double best = std::numeric_limits<double>::infinity();
            int nearest = 0;
            for (std::size_t i = 0; i < exchanges.pieces.size(); ++i) {
                const double handicap =
                    (exchanges.pieces[i].nation != csg.nation ? 1e6 : 0) + (ringOfExchange(i) != csg.ring ? 1e5 : 0);
                const double d = distance(exchanges.pieces[i].centre, csg.place) + handicap;
                if (taken[i] || d >= best)
                    continue;
                best = d;
                nearest = static_cast<int>(i);
            }
            taken[static_cast<std::size_t>(nearest)] = true;
            chosen.push_back(nearest);
        }
        return chosen;
    }

    int ringOfExchange(std::size_t exchange) const {
        return mesh_.faces[static_cast<std::size_t>(exchangeFaces_[exchange])].ring;
    }

    static std::vector<int> relabel(const std::vector<int>& faceLabels, const std::vector<int>& labelOfLabel) {
        std::vector<int> labels;
        for (const int label : faceLabels)
            labels.push_back(labelOfLabel[static_cast<std::size_t>(label)]);
        return labels;
    }

    void makeRegions() {
        const std::vector<std::string>& regions = gazetteer_.regions;
        for (const SeedArea& district : seeds_.districts) {
            const std::string& region = gazetteer_.towns[static_cast<std::size_t>(district.town)].region;
            regionOfDistrict_.push_back(
                static_cast<int>(std::lower_bound(regions.begin(), regions.end(), region) - regions.begin()));
        }
        regionOfDistrict_.push_back(static_cast<int>(regions.size())); // the Republic
        std::vector<std::string> names = regions;
        names.emplace_back(republicOfIreland);
        geography_.tvRegions = makeAreas(relabel(districtOfFace_, regionOfDistrict_), names);
    }

    void makeBorders() {
        std::vector<int> labels;
        for (const LandGraph::Piece& piece : graph_.pieces)
            labels.push_back(static_cast<int>(piece.nation));
        geography_.borders = makeAreas(labels, {nationNames.begin(), nationNames.end()});
    }

    /// The population of the faces, thinning out from the seed of their district.
    std::vector<double> facePopulation() const {
        std::vector<double> share(mesh_.faces.size(), 0.0);
        std::vector<double> total(seeds_.districts.size(), 0.0);
        for (std::size_t face = 0; face < share.size(); ++face) {
            const auto district = static_cast<std::size_t>(districtOfFace_[face]);
            if (district == seeds_.districts.size())
                continue;
            const MapPoint seed = seeds_.places[static_cast<std::size_t>(seeds_.districts[district].place)];
            const double reach = 2 * graph_.pieces[face].spacing;
            const double d = distance(graph_.pieces[face].centre, seed) / reach;
            share[face] = mesh_.faces[face].area / (1 + d * d);
            total[district] += share[face];
        }
        for (std::size_t face = 0; face < share.size(); ++face) {
            const auto district = static_cast<std::size_t>(districtOfFace_[face]);
            if (district < seeds_.districts.size())
                share[face] *= seeds_.districts[district].people / total[district];
        }
        return share;
    }

    void makeCodes() {
        const std::vector<double> people = facePopulation();
        std::map<std::pair<int, int>, double> overlaps;
        for (std::size_t face = 0; face < people.size(); ++face)
            if (graph_.pieces[face].nation != Nation::RepublicOfIreland)
                overlaps[{exchangeOfFace_[face], districtOfFace_[face]}] += people[face];
        std::vector<Overlap> list;
        for (const auto& [areas, count] : overlaps)
            list.push_back({areas.first, areas.second, count});

        geography_.exchangePrefix = numberExchanges(gazetteer_, seeds_, seedFor(seed_, Use::Numbers));
        geography_.codes = allotCodes(geography_.exchangePrefix, std::move(list));
        for (CallCode& code : geography_.codes) {
            code.csg = csgOfExchange_[static_cast<std::size_t>(code.exchange)];
            code.tvRegion = regionOfDistrict_[static_cast<std::size_t>(code.postcodeDistrict)];
        }
        geography_.exchangePrefix.emplace_back(".353"); // calls from the Republic are international
    }

    std::uint64_t seed_;
    Geos geos_;
    Coast coast_;
    Nations nations_;
    Gazetteer gazetteer_;
    Seeds seeds_;
    std::vector<Site> sites_;
    FaceMesh mesh_;
    LandGraph graph_;
    FaceSearch search_;

    std::vector<int> districtOfFace_;
    std::vector<int> exchangeOfFace_;
    std::vector<int> exchangeFaces_; ///< where each exchange grew from
    std::vector<int> csgOfExchange_;
    std::vector<int> regionOfDistrict_;
    Geography geography_;
};

} // namespace

Geography makeGeography(std::uint64_t seed) {
    return GeographyBuilder(seed).build();
}

} // namespace sample
