#include "tests/data/engine/FaultyStorage.h"

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

/// A file of the layer; the real one lies behind it in memory.
struct LayerFile {
    sqlite3_file base;
    FaultyStorage* storage;
    std::string* path;
    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

LayerFile& layer(sqlite3_file* file) {
    return *reinterpret_cast<LayerFile*>(file);
}
sqlite3_file* real(sqlite3_file* file) {
    return layer(file).real();
}
sqlite3_vfs* real(sqlite3_vfs* vfs) {
    return static_cast<sqlite3_vfs*>(vfs->pAppData);
}

int closeFile(sqlite3_file* file) {
    delete layer(file).path;
    return real(file)->pMethods->xClose(real(file));
}

int readFile(sqlite3_file* file, void* to, int amount, sqlite3_int64 offset) {
    const int fault = layer(file).storage->beforeOperation(SQLITE_IOERR_READ);
    return fault ? fault : real(file)->pMethods->xRead(real(file), to, amount, offset);
}

int writeFile(sqlite3_file* file, const void* from, int amount, sqlite3_int64 offset) {
    LayerFile& own = layer(file);
    sqlite3_int64 size = 0;
    real(file)->pMethods->xFileSize(real(file), &size);
    if (const int fault = own.storage->beforeWrite(*own.path, offset + amount, size))
        return fault;
    const int code = real(file)->pMethods->xWrite(real(file), from, amount, offset);
    if (code == SQLITE_OK)
        own.storage->written(*own.path, offset, {static_cast<const char*>(from), static_cast<std::size_t>(amount)});
    return code;
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    LayerFile& own = layer(file);
    if (const int fault = own.storage->beforeOperation(SQLITE_IOERR_TRUNCATE))
        return fault;
    const int code = real(file)->pMethods->xTruncate(real(file), size);
    if (code == SQLITE_OK)
        own.storage->cut(*own.path, size);
    return code;
}

int syncFile(sqlite3_file* file, int flags) {
    LayerFile& own = layer(file);
    if (const int fault = own.storage->beforeOperation(SQLITE_IOERR_FSYNC))
        return fault;
    const int code = real(file)->pMethods->xSync(real(file), flags);
    if (code == SQLITE_OK)
        own.storage->synced(*own.path);
    return code;
}

int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return real(file)->pMethods->xFileSize(real(file), size);
}
int lockFile(sqlite3_file* file, int level) {
    return real(file)->pMethods->xLock(real(file), level);
}
int unlockFile(sqlite3_file* file, int level) {
    return real(file)->pMethods->xUnlock(real(file), level);
}
int checkReservedLock(sqlite3_file* file, int* held) {
    return real(file)->pMethods->xCheckReservedLock(real(file), held);
}
int fileControl(sqlite3_file* file, int operation, void* argument) {
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}
int sectorSize(sqlite3_file* file) {
    return real(file)->pMethods->xSectorSize(real(file));
}
int deviceCharacteristics(sqlite3_file* file) {
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}

/// Version 1: no shared memory and no mapping, so that every byte comes by here.
constexpr sqlite3_io_methods methods{
    1,          closeFile,         readFile,    writeFile,  truncateFile,          syncFile, fileSize, lockFile,
    unlockFile, checkReservedLock, fileControl, sectorSize, deviceCharacteristics, nullptr,  nullptr,  nullptr,
    nullptr,    nullptr,           nullptr};

FaultyStorage* installed = nullptr;

int openFile(sqlite3_vfs* vfs, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags) {
    LayerFile& own = layer(file);
    own.base.pMethods = nullptr;
    int exists = 0;
    if (name)
        real(vfs)->xAccess(real(vfs), name, SQLITE_ACCESS_EXISTS, &exists);
    const int code = real(vfs)->xOpen(real(vfs), name, own.real(), flags, outFlags);
    if (code != SQLITE_OK)
        return code;
    own.base.pMethods = &methods;
    own.storage = installed;
    own.path = new std::string(name ? name : "");
    installed->opened(*own.path, exists != 0);
    return SQLITE_OK;
}

int removeFile(sqlite3_vfs* vfs, const char* name, int syncFolder) {
    const int code = real(vfs)->xDelete(real(vfs), name, syncFolder);
    if (code == SQLITE_OK)
        installed->removed(name);
    return code;
}

std::string contents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

FaultyStorage& FaultyStorage::install() {
    if (installed)
        return *installed;
    static FaultyStorage storage;
    // Below the layer that encrypts, which stands on the plain one.
    sqlite3_initialize();
    static sqlite3_vfs vfs = *sqlite3_vfs_find("unix");
    vfs.pAppData = sqlite3_vfs_find("unix");
    vfs.zName = "faulty";
    vfs.szOsFile += static_cast<int>(sizeof(LayerFile));
    vfs.xOpen = openFile;
    vfs.xDelete = removeFile;
    if (sqlite3_vfs_register(&vfs, 0) != SQLITE_OK || sqlite3mc_vfs_create("faulty", 1) != SQLITE_OK)
        throw std::runtime_error("the layer could not be put in place");
    installed = &storage;
    return storage;
}

void FaultyStorage::fillDisk(long growingWritesThatFit) {
    mend();
    growingLeft_ = growingWritesThatFit;
}

void FaultyStorage::failOperation(long number, bool lasting) {
    mend();
    failAt_ = number;
    lasting_ = lasting;
}

void FaultyStorage::mend() {
    growingLeft_ = -1;
    failAt_ = -1;
    operations_ = 0;
    failed_ = false;
}

int FaultyStorage::beforeOperation(int fault) {
    const long number = operations_++;
    if (failAt_ < 0 || number < failAt_ || (number > failAt_ && !lasting_))
        return SQLITE_OK;
    failed_ = true;
    return fault;
}

int FaultyStorage::beforeWrite(const std::string&, std::int64_t end, std::int64_t sizeNow) {
    if (growingLeft_ >= 0 && end > sizeNow) {
        if (growingLeft_ == 0) {
            failed_ = true;
            return SQLITE_FULL;
        }
        --growingLeft_;
    }
    return beforeOperation(SQLITE_IOERR_WRITE);
}

void FaultyStorage::startRecording() {
    tracks_.clear();
    images_.clear();
    recording_ = true;
}

std::vector<DiskImage> FaultyStorage::stopRecording() {
    keepImages();
    recording_ = false;
    tracks_.clear();
    return std::move(images_);
}

/// A file that was there before recording began is safe as it lies.
FaultyStorage::Track* FaultyStorage::trackOf(const std::string& path) {
    if (!recording_ || path.empty())
        return nullptr;
    const auto found = tracks_.find(path);
    if (found != tracks_.end())
        return &found->second;
    throw std::logic_error("a file was opened before recording: " + path);
}

void FaultyStorage::opened(const std::string& path, bool existed) {
    if (!recording_ || path.empty())
        return;
    Track& track = tracks_[path];
    if (existed && !track.safe && track.sinceSync.empty())
        track.safe = contents(path);
    if (!existed)
        track = Track();
}

void FaultyStorage::written(const std::string& path, std::int64_t offset, std::string bytes) {
    if (Track* track = trackOf(path))
        track->sinceSync.push_back({offset, std::move(bytes), false});
}

void FaultyStorage::cut(const std::string& path, std::int64_t size) {
    if (Track* track = trackOf(path))
        track->sinceSync.push_back({size, {}, true});
}

void FaultyStorage::synced(const std::string& path) {
    Track* track = trackOf(path);
    if (!track)
        return;
    keepImages();
    std::string safe = track->safe.value_or(std::string());
    for (const Change& change : track->sinceSync)
        apply(safe, change);
    track->safe = std::move(safe);
    track->sinceSync.clear();
    keepImages();
}

void FaultyStorage::removed(const std::string& path) {
    if (!recording_)
        return;
    keepImages();
    tracks_[path].removed = true;
    keepImages();
}

void FaultyStorage::apply(std::string& file, const Change& change) {
    const auto at = static_cast<std::size_t>(change.offset);
    if (change.cuts) {
        file.resize(at);
        return;
    }
    if (file.size() < at + change.bytes.size())
        file.resize(at + change.bytes.size());
    file.replace(at, change.bytes.size(), change.bytes);
}

/// All of it, nothing, or some of its sectors.
void FaultyStorage::applySome(std::string& file, const Change& change) {
    constexpr std::size_t sector = 512;
    const auto choice = random_() % 3;
    if (choice == 0)
        return;
    if (choice == 1 || change.cuts)
        return apply(file, change);
    for (std::size_t from = 0; from < change.bytes.size();) {
        const auto at = static_cast<std::size_t>(change.offset) + from;
        const std::size_t length = std::min(sector - at % sector, change.bytes.size() - from);
        if (random_() % 2 == 0)
            apply(file, {static_cast<std::int64_t>(at), change.bytes.substr(from, length), false});
        from += length;
    }
}

std::optional<std::string> FaultyStorage::after(const Track& track, Loss loss) {
    const bool someRemain = loss == Loss::OfSome && random_() % 2 == 0;
    if (track.removed && loss != Loss::OfAllUnsynced && !someRemain)
        return std::nullopt;
    if (!track.safe && (loss == Loss::OfAllUnsynced || someRemain))
        return std::nullopt;
    std::string file = track.safe.value_or(std::string());
    for (const Change& change : track.sinceSync) {
        if (loss == Loss::OfNothing)
            apply(file, change);
        else if (loss == Loss::OfSome)
            applySome(file, change);
    }
    return file;
}

void FaultyStorage::keepImages() {
    for (const Loss loss : {Loss::OfAllUnsynced, Loss::OfNothing, Loss::OfSome, Loss::OfSome, Loss::OfSome}) {
        DiskImage image;
        for (const auto& [path, track] : tracks_) {
            if (auto file = after(track, loss))
                image[std::filesystem::path(path).filename().string()] = std::move(*file);
        }
        images_.push_back(std::move(image));
    }
}
