#include "sample/geography/Growth.h"

#include <gtest/gtest.h>
#include <vector>

using namespace sample;

namespace {

LandGraph::Piece piece(double x, Nation nation = Nation::England) {
    return {{x, 0}, 10, nation};
}

/// Pieces in a row; neighbours are those that stand ten units apart.
LandGraph rowOf(const std::vector<LandGraph::Piece>& pieces) {
    LandGraph graph;
    graph.pieces = pieces;
    graph.neighbours.resize(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i)
        for (std::size_t j = 0; j < pieces.size(); ++j)
            if (const double gap = pieces[i].centre.x - pieces[j].centre.x; gap == 10 || gap == -10)
                graph.neighbours[i].push_back(static_cast<int>(j));
    return graph;
}

} // namespace

TEST(Growth, StopsAtTheNationsBorder) {
    const LandGraph graph = rowOf({piece(0), piece(10), piece(20), piece(30), piece(40, Nation::Scotland)});
    const std::vector<int> seeds{0, 4};
    EXPECT_EQ(growAreas(graph, seeds, 1), (std::vector{0, 0, 0, 0, 1}));
}

TEST(Growth, GivesAnIslandWholeToTheNearestAreaOfItsNation) {
    const LandGraph graph = rowOf({piece(0), piece(10, Nation::Wales), // the mainland
                                   piece(35), piece(45), piece(55),    // an island, its far end nearer to the next
                                   piece(75)});                        // another mainland
    const std::vector<int> seeds{0, 1, 5};
    EXPECT_EQ(growAreas(graph, seeds, 1), (std::vector{0, 1, 2, 2, 2, 2}));
}

TEST(Growth, GivesANationWithoutSeedsToItsNeighbour) {
    const LandGraph graph = rowOf({piece(0), piece(10), piece(20, Nation::Wales)});
    const std::vector<int> seeds{0};
    EXPECT_EQ(growAreas(graph, seeds, 1), (std::vector{0, 0, 0}));
}

TEST(Growth, KeepsTheRepublicApart) {
    const LandGraph graph = rowOf({piece(0, Nation::NorthernIreland), piece(10, Nation::RepublicOfIreland),
                                   piece(20, Nation::RepublicOfIreland), piece(30, Nation::NorthernIreland)});
    const std::vector<int> seeds{0};
    EXPECT_EQ(growAreas(graph, seeds, 1), (std::vector{0, 1, 1, 0}));
}

TEST(Growth, JoinedGraphLinksAreasThatTouch) {
    const LandGraph graph = rowOf({piece(0), piece(10), piece(20), piece(30), piece(50)});
    const std::vector<int> labels{0, 0, 1, 1, 2};
    const std::vector<int> seeds{1, 3, 4};
    const LandGraph joined = joinPieces(graph, labels, seeds);
    EXPECT_EQ(joined.neighbours, (std::vector<std::vector<int>>{{1}, {0}, {}}));
    EXPECT_EQ(joined.pieces[1].centre.x, 30);
}
