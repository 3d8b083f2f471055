#include "data/engine/FileProbe.h"

#include "core/cPathControl.h"
#include "data/types/DatabaseError.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

using Header = std::array<unsigned char, 100>;

std::uint32_t bigEndian32(const Header& header, std::size_t at) {
    return (std::uint32_t{header[at]} << 24) | (std::uint32_t{header[at + 1]} << 16) |
           (std::uint32_t{header[at + 2]} << 8) | std::uint32_t{header[at + 3]};
}

/// The page size in bytes 16 and 17; 0 where it is none.
std::uint64_t pageSize(const Header& header) {
    const std::uint32_t stored = (std::uint32_t{header[16]} << 8) | header[17];
    const std::uint64_t size = stored == 1 ? 65536 : stored;
    return size >= 512 && (size & (size - 1)) == 0 ? size : 0;
}

/// Bytes 18 to 23 lie open in encrypted files too: write and read version, then the payload fractions, which are fixed.
bool hasFixedHeaderBytes(const Header& header) {
    return header[21] == 64 && header[22] == 32 && header[23] == 32 && header[18] <= 2 && header[19] <= 2 &&
           pageSize(header) != 0;
}

[[noreturn]] void damaged(const std::string& path, const std::string& why) {
    throw DatabaseError(3049, "The database file '" + path + "' is damaged: " + why);
}

} // namespace

FileProbe probeFile(const std::string& path) {
    const std::filesystem::path file = toPath(path);
    std::error_code fault;
    if (!std::filesystem::exists(file, fault))
        throw DatabaseError(3024, "Could not find file '" + path + "'");
    const auto unrecognized = [&] { return DatabaseError(3343, "Unrecognized database format '" + path + "'"); };
    if (!std::filesystem::is_regular_file(file, fault))
        throw unrecognized();
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw DatabaseError(3051, "The file '" + path + "' may not be opened");
    Header header{};
    stream.read(reinterpret_cast<char*>(header.data()), static_cast<std::streamsize>(header.size()));
    const auto got = stream.gcount();
    const bool plain = got >= 16 && std::memcmp(header.data(), "SQLite format 3", 16) == 0;
    if (got < static_cast<std::streamsize>(header.size())) {
        if (plain || (got >= 24 && hasFixedHeaderBytes(header)))
            damaged(path, "it ends inside its header");
        throw unrecognized();
    }
    if (!hasFixedHeaderBytes(header)) {
        if (plain)
            damaged(path, "its header is not valid");
        throw unrecognized();
    }
    // The storage library undoes an interrupted change when it opens the file; until then its size may be any.
    const std::filesystem::path journal = toPath(path + "-journal");
    const bool interrupted = std::filesystem::exists(journal, fault) && std::filesystem::file_size(journal, fault) > 0;
    const std::uint64_t size = std::filesystem::file_size(file, fault);
    if (!interrupted && size % pageSize(header) != 0)
        damaged(path, "it has been cut off");
    const std::uint32_t application = bigEndian32(header, 68);
    // In an encrypted file the mark would be unreadable.
    if (!plain && application == static_cast<std::uint32_t>(ApplicationId))
        damaged(path, "its header is not valid");
    if (plain) {
        // The page count is to be believed where it was written together with the change counter.
        if (!interrupted && bigEndian32(header, 24) == bigEndian32(header, 92) &&
            bigEndian32(header, 28) * pageSize(header) > size)
            damaged(path, "it has been cut off");
        if (application != 0 && application != static_cast<std::uint32_t>(ApplicationId))
            throw unrecognized();
    }
    return {plain ? FileProbe::Kind::Plain : FileProbe::Kind::Encrypted};
}
