#include "sample/geography/Dissolve.h"
#include "sample/geography/PlaneGeometry.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace sample;

namespace {

/// A board of square faces of side 1, each with its own label; '.' is the sea. The first line is the top.
class Board {
public:
    explicit Board(std::vector<std::string> lines) : lines_(std::move(lines)) {
        for (int y = 0; y <= rows(); ++y)
            for (int x = 0; x <= columns(); ++x)
                mesh_.vertices.push_back({static_cast<double>(x), static_cast<double>(y)});
        for (int y = 0; y < rows(); ++y)
            for (int x = 0; x < columns(); ++x)
                addFace(x, y);
        addSides();
    }

    std::vector<std::vector<Ring>> dissolved(int labels) const { return dissolve(mesh_, labels_, labels); }

private:
    int rows() const { return static_cast<int>(lines_.size()); }
    int columns() const { return static_cast<int>(lines_.front().size()); }
    char at(int x, int y) const {
        if (x < 0 || y < 0 || x >= columns() || y >= rows())
            return '.';
        return lines_[static_cast<std::size_t>(rows() - 1 - y)][static_cast<std::size_t>(x)];
    }

    void addFace(int x, int y) {
        if (at(x, y) == '.')
            return;
        mesh_.faces.push_back({});
        labels_.push_back(at(x, y) - 'a');
        faceAt_.push_back({x, y});
    }

    int face(int x, int y) const {
        for (std::size_t i = 0; i < faceAt_.size(); ++i)
            if (faceAt_[i] == std::pair(x, y))
                return static_cast<int>(i);
        return FaceMesh::sea;
    }

    int vertex(int x, int y) const { return y * (columns() + 1) + x; }

    /// All sides of the squares, also those at sea, and what follows what round each square.
    void addSides() {
        for (int y = -1; y <= rows(); ++y)
            for (int x = -1; x <= columns(); ++x) {
                if (x >= 0 && x < columns() && y >= 0)
                    addEdge({x, y}, {x + 1, y}, face(x, y), face(x, y - 1)); // the lower side
                if (y >= 0 && y < rows() && x >= 0)
                    addEdge({x, y}, {x, y + 1}, face(x - 1, y), face(x, y)); // the left side
            }
        for (std::size_t h = 0; h < mesh_.halfEdges.size(); ++h)
            mesh_.halfEdges[h].next = following(static_cast<int>(h));
    }

    void addEdge(std::pair<int, int> from, std::pair<int, int> to, int left, int right) {
        if (from.first > columns() || to.first > columns() || from.second > rows() || to.second > rows())
            return;
        mesh_.halfEdges.push_back({vertex(from.first, from.second), 0, left});
        mesh_.halfEdges.push_back({vertex(to.first, to.second), 0, right});
    }

    /// The way that turns furthest to the left, which keeps to the same square.
    int following(int h) const {
        const auto place = [&](int v) { return mesh_.vertices[static_cast<std::size_t>(v)]; };
        const int corner = mesh_.target(h);
        const MapPoint way = place(corner) - place(mesh_.halfEdges[static_cast<std::size_t>(h)].from);
        int best = FaceMesh::twin(h);
        double bestTurn = -2;
        for (std::size_t other = 0; other < mesh_.halfEdges.size(); ++other) {
            if (mesh_.halfEdges[other].from != corner || static_cast<int>(other) == FaceMesh::twin(h))
                continue;
            const double turn = cross(way, place(mesh_.target(static_cast<int>(other))) - place(corner));
            if (turn > bestTurn) {
                bestTurn = turn;
                best = static_cast<int>(other);
            }
        }
        return best;
    }

    std::vector<std::string> lines_;
    FaceMesh mesh_;
    std::vector<int> labels_;
    std::vector<std::pair<int, int>> faceAt_;
};

/// Signed areas of the rings in their order: outer rings positive, holes negative.
std::vector<double> areas(const std::vector<Ring>& rings) {
    std::vector<double> result;
    for (const Ring& ring : rings) {
        EXPECT_EQ(ring.vertices.front(), ring.vertices.back());
        result.push_back(signedArea(ring.vertices));
    }
    return result;
}

} // namespace

TEST(Dissolve, JoinsEqualLabelsAndLeavesHoles) {
    struct Row {
        std::string name;
        std::vector<std::string> board;
        std::vector<std::vector<double>> areas; // per label
    };
    const std::vector<Row> rows{
        {"one square", {"a"}, {{1}}},
        {"two areas side by side", {"aab", "abb"}, {{3}, {3}}},
        {"an island apart, the largest part first", {"a.aa", "a.aa"}, {{4, 2}}},
        {"an area within another", {"aaa", "aba", "aaa"}, {{9, -1}, {1}}},
        {"a lake", {"aaa", "a.a", "aaa"}, {{9, -1}}},
        {"parts that touch at a corner are two rings", {"ab", "ba"}, {{1, 1}, {1, 1}}},
        {"holes that touch at a corner are two rings", {"aaaa", "abaa", "aaba", "aaaa"}, {{16, -1, -1}, {1, 1}}},
        {"a hole that touches the outer ring at a corner", {"baa", "aba", "aaa"}, {{8, -1}, {1, 1}}},
        {"holes follow their own part", {"aaa.aaaa", "aba.abba", "aaa.aaaa"}, {{12, -2, 9, -1}, {2, 1}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto rings = Board(row.board).dissolved(static_cast<int>(row.areas.size()));
        for (std::size_t label = 0; label < row.areas.size(); ++label)
            EXPECT_EQ(areas(rings[label]), row.areas[label]) << "label " << label;
    }
}
