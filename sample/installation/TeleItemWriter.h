#pragma once

#include "data/sqlite/Connection.h"
#include "sample/installation/CallGenerator.h"

#include <array>
#include <string>
#include <vector>

class Database;

namespace sample {

/// Writes calls into TblTeleItem with one prepared statement and without taking memory for a call. All arguments must
/// outlive the writer; the caller holds the transaction.
class TeleItemWriter {
public:
    TeleItemWriter(Database& project, const CallCalendar& calendar, const CallerPool& callers);

    void write(const Call& call);

private:
    void bindTimes(const Call& call);
    void bindCaller(const Call& call);

    const CallCalendar& calendar_;
    const CallerPool& callers_;
    sqlite::Statement insert_;
    std::array<char, 8> callTime_{}; ///< bound in place, like the next two
    std::array<char, 20> callingNo_{};
    char answerInd_ = '0';
    int day_ = -1; ///< whose date is bound
};

} // namespace sample
