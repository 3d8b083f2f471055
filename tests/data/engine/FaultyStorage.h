#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

struct sqlite3_file;
struct sqlite3_vfs;

/// The files of one folder at one moment, by name.
using DiskImage = std::map<std::string, std::string>;

/// A layer between the storage library and the disk, below encryption. It makes operations fail, and it knows at every
/// moment what a loss of power would leave: written bytes are safe only behind a sync, and of what was written since
/// then any part may be there, torn at sectors of 512 bytes. One for the process; one thread.
class FaultyStorage {
public:
    /// Puts the layer under everything that is opened from now on. It lets all pass until told otherwise.
    static FaultyStorage& install();

    /// The writes that make a file longer fail for want of space, from the given one (from 0) on.
    void fillDisk(long growingWritesThatFit);
    /// The operation of the given number (from 0) fails; all behind it too where `lasting`. Reads, writes, cuts and
    /// syncs count.
    void failOperation(long number, bool lasting);
    /// All is well again; the counters begin anew.
    void mend();
    /// Whether a fault was met since it was asked for.
    bool failed() const { return failed_; }

    /// From now on what a loss of power would leave is kept, at every sync and at every removal of a file.
    void startRecording();
    std::vector<DiskImage> stopRecording();

    // What the layer's file methods call. Each gives a result code of the library.
    int beforeOperation(int fault);
    int beforeWrite(const std::string& path, std::int64_t end, std::int64_t sizeNow);
    void written(const std::string& path, std::int64_t offset, std::string bytes);
    void cut(const std::string& path, std::int64_t size);
    void opened(const std::string& path, bool existed);
    void synced(const std::string& path);
    void removed(const std::string& path);

private:
    FaultyStorage() = default;

    struct Change {
        std::int64_t offset = 0; ///< or the new size, where it cuts
        std::string bytes;
        bool cuts = false;
    };
    struct Track {
        std::optional<std::string> safe; ///< nothing where the file's name is not on the disk for certain
        std::vector<Change> sinceSync;
        bool removed = false;
    };
    enum class Loss { OfAllUnsynced, OfNothing, OfSome };

    static void apply(std::string& file, const Change& change);
    void applySome(std::string& file, const Change& change);
    std::optional<std::string> after(const Track& track, Loss loss);
    Track* trackOf(const std::string& path);
    void keepImages();

    long growingLeft_ = -1; ///< -1: no limit
    long failAt_ = -1;
    bool lasting_ = false;
    long operations_ = 0;
    bool failed_ = false;

    bool recording_ = false;
    std::map<std::string, Track> tracks_; ///< by path
    std::vector<DiskImage> images_;
    std::mt19937 random_{2026};
};
