#pragma once

#include "data/sqlite/Connection.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class Database;

/// Some rows of TblTeleItem as they were read, to be handed to another thread.
struct CallChunk {
    static constexpr std::uint16_t null = 0xFFFF; ///< in `lengths`
    static constexpr std::size_t texts = 7; ///< CallTime, CalledNo, AnswerLoc, NetAddress, 1141, AnswerInd, CallingNo

    std::vector<double> dates;           ///< not a number: null
    std::vector<std::int32_t> money;     ///< ten-thousandths; null is 0
    std::vector<std::uint8_t> payphones; ///< 1 for a call from a payphone
    std::vector<std::uint16_t> lengths;  ///< row × `texts`
    std::string bytes;                   ///< the texts, one behind the other

    std::size_t rows() const { return dates.size(); }
    void clear();
};

/// Reads the calls of a project in the order of the table. Main thread only.
class CallReader {
public:
    /// Throws DatabaseError, naming table and column: 3078 no table, 3265 a missing column, 3421 a column of another
    /// type than the figures need.
    explicit CallReader(Database& project);

    /// Fills the chunk with the next rows, none at the end. Throws DatabaseError 3421 for a value that cannot be kept
    /// in columns: one of another kind than its column, money finer than a ten-thousandth or above 214,000 pounds.
    void read(CallChunk& chunk);

private:
    void readText(CallChunk& chunk, int column) const;
    bool isFromPayphone() const;
    double date() const;
    std::int32_t money() const;
    [[noreturn]] void refuse(int column, const std::string& what) const;

    sqlite::Statement rows_;
    bool atEnd_ = false;
};

/// The columns that are read, in the order of the statement: date, money, then the texts of a chunk.
const std::vector<std::string>& callColumnNames();
