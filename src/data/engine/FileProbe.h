#pragma once

#include <string>

/// What the first bytes and the size of a file tell, before the storage library is asked. Reads only.
struct FileProbe {
    enum class Kind { Plain, Encrypted };
    Kind kind = Kind::Plain;
};

/// Throws DatabaseError, naming the path: 3024 where there is no such file, 3051 where it may not be read, 3343 where
/// it is no database of this kind, 3049 where it is shorter than it says or its size is no whole number of pages.
FileProbe probeFile(const std::string& path);

/// Stands in a file's header and marks it as made by this product ("CSMP").
inline constexpr int ApplicationId = 0x43534D50;
