#include "tests/data/engine/FaultyStorage.h"
#include "tests/data/engine/ReliabilityScene.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iostream>

namespace {

constexpr int calls = 150;
constexpr int smallCache = 5;

void lay(const std::string& folder, const DiskImage& image) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directory(folder);
    for (const auto& [name, bytes] : image)
        std::ofstream(folder + "/" + name, std::ios::binary) << bytes;
}

/// At most `wanted` of them, spread over the whole change.
std::vector<DiskImage> someOf(std::vector<DiskImage> images, std::size_t wanted) {
    if (allMomentsWanted() || images.size() <= wanted)
        return images;
    std::vector<DiskImage> some;
    std::mt19937 random(1);
    for (std::size_t i = 0; i < wanted; ++i) {
        const std::size_t from = i * images.size() / wanted;
        const std::size_t to = (i + 1) * images.size() / wanted;
        some.push_back(std::move(images[from + random() % (to - from)]));
    }
    return some;
}

} // namespace

TEST(PowerLoss, LeavesTheFileAsBeforeOrAsAfter) {
    FaultyStorage& storage = FaultyStorage::install();
    const TemporaryFolder folder;
    const std::string lost = folder.makeFolder("lost");
    int images = 0;
    int undone = 0;
    for (const FileKind& kind : fileKinds()) {
        const std::string base = folder.file(std::string(kind.name) + ".mdb");
        makeCallsFile(base, kind.connect, calls);
        const std::string before = stateOf(base, kind.connect);
        for (const Change& change : changes()) {
            for (const int cachePages : {0, smallCache}) {
                const std::string path = folder.file("changed.mdb");
                std::filesystem::copy_file(base, path, std::filesystem::copy_options::overwrite_existing);
                storage.startRecording();
                {
                    const auto database = openAlone(path, kind.connect, cachePages);
                    change.run(*database);
                }
                const std::vector<DiskImage> losses = someOf(storage.stopRecording(), kind.connect.empty() ? 20 : 5);
                const std::string after = stateOf(path, kind.connect);
                ASSERT_NE(before, after) << change.name;
                ASSERT_GT(losses.size(), 4u) << change.name << ": nothing was synced";
                for (std::size_t i = 0; i < losses.size(); ++i) {
                    // The link of the files leads to the base, which nothing happens to.
                    lay(lost, losses[i]);
                    undone += losses[i].contains("changed.mdb-journal");
                    ++images;
                    ASSERT_EQ(faultAfterAccident(lost + "/changed.mdb", kind.connect, before, after), "")
                        << kind.name << ", " << change.name << ", cache " << cachePages << ", moment " << i << " of "
                        << losses.size();
                }
            }
        }
    }
    std::cout << images << " losses of power, " << undone << " of them with a journal\n";
    EXPECT_GT(undone, images / 4);
}
