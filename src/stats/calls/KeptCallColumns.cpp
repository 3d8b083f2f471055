#include "stats/calls/KeptCallColumns.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "stats/calls/ByteStream.h"
#include "stats/calls/CallMark.h"
#include "stats/calls/CallReader.h"
#include "stats/calls/SmallPageCache.h"
#include "stats/calls/TextIds.h"

#include <lz4.h>

#include <algorithm>
#include <atomic>

namespace {

constexpr std::int64_t formatVersion = 3;
constexpr std::size_t pieceBytes = 1 << 20;
constexpr std::int64_t headerPart = -1;

std::string keptTable(const Database& project) {
    return quoteIdentifier(project.schema()) + ".MSysCallColumns";
}

bool hasKeptTable(Database& project) {
    sqlite::Statement found(project.connection(), "SELECT 1 FROM " + quoteIdentifier(project.schema()) +
                                                      ".sqlite_schema WHERE name = 'MSysCallColumns'");
    return found.step();
}

/// Everything of the rows spread over the table that the columns hold, mixed to one number.
std::uint64_t hashOfSample(Database& project, std::int64_t lowest, std::int64_t highest) {
    constexpr std::int64_t samples = 256;
    std::string list;
    for (const std::string& name : callColumnNames())
        list += (list.empty() ? "" : ", ") + quoteIdentifier(name);
    sqlite::Statement row(project.connection(), "SELECT " + list + " FROM " + quoteIdentifier(project.schema()) +
                                                    ".TblTeleItem WHERE rowid >= ? ORDER BY rowid LIMIT 1");
    std::uint64_t hash = 0;
    const std::int64_t step = std::max<std::int64_t>(1, (highest - lowest) / samples);
    for (std::int64_t at = lowest; at <= highest && at >= lowest; at += step) {
        row.bind(1, at);
        if (row.step()) {
            for (int column = 0; column < row.columnCount(); ++column) {
                const std::string_view text = row.text(column);
                hash = hash * 31 + hashBytes(text.data(), text.size()) + (row.isNull(column) ? 1 : 0);
            }
        }
        row.reset();
    }
    return hash;
}

/// What the kept columns must agree with, apart from the number of calls. The mark alone would do where every program
/// that writes the file minds triggers; the rest costs nothing.
std::string stampOf(Database& project) {
    const std::string schema = quoteIdentifier(project.schema());
    sqlite::Statement lowest(project.connection(), "SELECT min(rowid) FROM " + schema + ".TblTeleItem");
    sqlite::Statement highest(project.connection(), "SELECT max(rowid) FROM " + schema + ".TblTeleItem");
    lowest.step();
    highest.step();
    ByteWriter stamp;
    stamp.number(formatVersion);
    stamp.number(lowest.integer(0));
    stamp.number(highest.integer(0));
    stamp.number(static_cast<std::int64_t>(hashOfSample(project, lowest.integer(0), highest.integer(0))));
    stamp.text(callMark(project));
    return stamp.bytes();
}

void writeValues(ByteWriter& out, const std::vector<Value>& values) {
    out.number(static_cast<std::int64_t>(values.size()));
    for (const Value& value : values) {
        out.number(value.isNull() ? 0 : (value.isDate() ? 1 : 2));
        if (value.isDate())
            out.real(value.asDate().days);
        else if (!value.isNull())
            out.text(value.asText());
    }
}

std::vector<Value> readValues(ByteReader& in) {
    std::vector<Value> values;
    for (std::int64_t left = in.number(); left > 0; --left) {
        const std::int64_t kind = in.number();
        if (kind == 0)
            values.emplace_back();
        else if (kind == 1)
            values.emplace_back(Date{in.real()});
        else
            values.emplace_back(in.text());
    }
    return values;
}

/// The columns of the calls by part, as bare memory.
template<typename Columns, typename Take>
void forEachPart(Columns& columns, Take take) {
    std::int64_t part = 0;
    for (auto& ids : columns.ids)
        take(part++, ids);
    take(part++, columns.answerInd);
    take(part++, columns.money);
    take(part++, columns.callerFlags);
}

/// How many calls a part must cover; AnswerInd has a vector of its own.
std::size_t rowsOfPart(std::int64_t part, std::size_t rows) {
    return part == static_cast<std::int64_t>(CallField::AnswerInd) ? 0 : rows;
}

struct Piece {
    std::int64_t part = 0;
    char* target = nullptr;
    std::size_t size = 0;
    std::uint64_t checksum = 0;
    std::string packed;
};

class PieceWriter {
public:
    PieceWriter(Database& project)
        : insert_(project.connection(), "INSERT INTO " + keptTable(project) + " VALUES(?, ?, ?, ?, ?)") {}

    /// False where `progress` stopped.
    bool write(std::int64_t part, const char* bytes, std::size_t size, const CallProgress& progress) {
        std::vector<char> packed(static_cast<std::size_t>(LZ4_compressBound(static_cast<int>(pieceBytes))));
        for (std::size_t at = 0; at < size; at += pieceBytes) {
            if (!progress())
                return false;
            const std::size_t length = std::min(pieceBytes, size - at);
            const int packedSize = LZ4_compress_default(bytes + at, packed.data(), static_cast<int>(length),
                                                        static_cast<int>(packed.size()));
            insert_.bind(1, part);
            insert_.bind(2, static_cast<std::int64_t>(at));
            insert_.bind(3, static_cast<std::int64_t>(length));
            insert_.bind(4, static_cast<std::int64_t>(hashBytes(bytes + at, length)));
            insert_.bind(5, std::as_bytes(std::span(packed.data(), static_cast<std::size_t>(packedSize))));
            insert_.step();
            insert_.reset();
        }
        return true;
    }

private:
    sqlite::Statement insert_;
};

bool unpack(const Piece& piece) {
    const int size = LZ4_decompress_safe(piece.packed.data(), piece.target, static_cast<int>(piece.packed.size()),
                                         static_cast<int>(piece.size));
    return size == static_cast<int>(piece.size) && hashBytes(piece.target, piece.size) == piece.checksum;
}

/// The stored row at which the statement stands. Its size is believed up to what its bytes can unpack to.
Piece pieceOf(const sqlite::Statement& row) {
    Piece piece;
    piece.part = row.integer(0);
    piece.checksum = static_cast<std::uint64_t>(row.integer(3));
    const auto bytes = row.bytes(4);
    piece.packed.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const std::int64_t size = row.integer(2);
    constexpr std::size_t mostExpansion = 256;
    if (size <= 0 || size > static_cast<std::int64_t>(pieceBytes) ||
        static_cast<std::size_t>(size) > piece.packed.size() * mostExpansion)
        throw DatabaseError(3049, "Kept columns are damaged");
    piece.size = static_cast<std::size_t>(size);
    return piece;
}

std::string piecesQuery(const Database& project, std::string_view where) {
    return "SELECT Part, Offset, Size, Checksum, Data FROM " + keptTable(project) + std::string(where) +
           " ORDER BY rowid";
}

/// The unpacked header: stamp, number of calls and callers, distinct values. Throws where it is damaged.
std::string readHeader(Database& project) {
    sqlite::Statement rows(project.connection(), piecesQuery(project, " WHERE Part = -1"));
    std::string header;
    while (rows.step()) {
        Piece piece = pieceOf(rows);
        const std::size_t at = header.size();
        header.resize(at + piece.size);
        piece.target = header.data() + at;
        if (!unpack(piece))
            throw DatabaseError(3049, "Kept columns are damaged");
    }
    return header;
}

template<typename T>
bool allBelow(const std::vector<T>& ids, std::size_t end) {
    return ids.empty() || *std::max_element(ids.begin(), ids.end()) < end;
}

/// Reads the packed pieces of all parts; each gets its place in a column. Throws where they do not fill the columns.
std::optional<std::vector<Piece>> readPieces(Database& project, CallColumns& columns, std::size_t rows,
                                             const CallProgress& progress) {
    std::vector<Piece> pieces;
    sqlite::Statement stored(project.connection(), piecesQuery(project, " WHERE Part >= 0"));
    while (stored.step()) {
        if (!progress())
            return {};
        pieces.push_back(pieceOf(stored));
    }
    bool goesOn = true;
    forEachPart(columns, [&](std::int64_t part, auto& column) {
        goesOn = goesOn && progress(); // setting memory aside takes its time
        const std::size_t size = rowsOfPart(part, rows) * sizeof(column[0]);
        std::size_t found = 0;
        for (const Piece& piece : pieces)
            found += piece.part == part ? piece.size : 0;
        if (found != size)
            throw DatabaseError(3049, "Kept columns are damaged");
        column.resize(rowsOfPart(part, rows));
        char* at = reinterpret_cast<char*>(column.data());
        for (Piece& piece : pieces) {
            if (piece.part == part) {
                piece.target = at;
                at += piece.size;
            }
        }
    });
    if (!goesOn)
        return {};
    return pieces;
}

/// Whether every id is one of a value. False where `progress` stopped, too.
bool idsFit(const CallColumns& columns, const CallProgress& progress) {
    std::atomic<bool> fit =
        columns.callerFlags.empty() || (columns.callerFlags.front() & CallColumns::firstOfCaller) != 0;
    const auto check = [&fit](const auto& ids, std::size_t end) {
        if (!allBelow(ids, end))
            fit = false;
    };
    std::vector<std::function<void()>> tasks{[&] { check(columns.answerInd, columns.answerKinds.size()); },
                                             [&] { check(columns.callerFlags, CallColumns::flagCount); }};
    for (std::size_t i = 0; i < callFieldCount; ++i)
        tasks.push_back([&, i] { check(columns.ids[i], columns.values[i].size()); });
    return runYielding(tasks, progress) && fit;
}

std::optional<CallColumns> load(Database& project, const CallProgress& progress) {
    const std::string headerBytes = readHeader(project);
    ByteReader header(headerBytes);
    if (callMark(project).empty() || header.text() != stampOf(project))
        return {};
    CallColumns columns;
    const std::int64_t rowNumber = header.number();
    constexpr std::int64_t mostRows = 1'000'000'000;
    if (rowNumber < 0 || rowNumber > mostRows)
        return {};
    const auto rows = static_cast<std::size_t>(rowNumber);
    columns.callers = static_cast<std::uint32_t>(header.number());
    for (auto& values : columns.values)
        values = readValues(header);
    columns.answerKinds = answerKindsOf(columns.valuesOf(CallField::AnswerInd));
    const auto pieces = readPieces(project, columns, rows, progress);
    if (!pieces)
        return {};
    std::atomic<bool> damaged = false;
    std::vector<std::function<void()>> tasks;
    for (const Piece& piece : *pieces) {
        if (piece.target)
            tasks.push_back([&] {
                if (!unpack(piece))
                    damaged = true;
            });
    }
    if (!runYielding(tasks, progress) || damaged || !idsFit(columns, progress))
        return {};
    return columns;
}

} // namespace

void saveCallColumns(Database& project, const CallColumns& columns, const CallProgress& progress) {
    if (project.isReadOnly())
        return;
    const SmallPageCache writtenAtOnce(project);
    sqlite::Savepoint whole(project.connection());
    makeCallMark(project);
    ByteWriter header;
    header.text(stampOf(project));
    header.number(static_cast<std::int64_t>(columns.size()));
    header.number(columns.callers);
    for (const auto& values : columns.values)
        writeValues(header, values);

    project.connection().execute("CREATE TABLE IF NOT EXISTS " + keptTable(project) +
                                 "(Part INTEGER, Offset INTEGER, Size INTEGER, Checksum INTEGER, Data BLOB)");
    project.connection().execute("DELETE FROM " + keptTable(project));
    bool complete = true;
    {
        PieceWriter writer(project);
        complete = writer.write(headerPart, header.bytes().data(), header.bytes().size(), progress);
        forEachPart(columns, [&](std::int64_t part, const auto& column) {
            complete = complete && writer.write(part, reinterpret_cast<const char*>(column.data()),
                                                column.size() * sizeof(column[0]), progress);
        });
    }
    if (complete)
        whole.release();
}

std::optional<CallColumns> loadCallColumns(Database& project, const CallProgress& progress) {
    if (!hasKeptTable(project))
        return {};
    try {
        const SmallPageCache readOnce(project);
        return load(project, progress);
    } catch (const DatabaseError&) {
        return {}; // whatever is wrong with them, they can be built again
    }
}

void removeKeptCallColumns(Database& project) {
    project.connection().execute("DROP TABLE IF EXISTS " + keptTable(project));
    removeCallMark(project);
}
