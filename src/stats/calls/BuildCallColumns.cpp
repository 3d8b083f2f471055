#include "stats/calls/BuildCallColumns.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "stats/calls/CallReader.h"
#include "stats/calls/CallerNumbers.h"
#include "stats/calls/SmallPageCache.h"
#include "stats/calls/TextIds.h"

#include <bit>
#include <cmath>
#include <condition_variable>
#include <future>
#include <mutex>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// The fields of a chunk's texts in their order; the last text is the caller.
constexpr std::array<CallField, CallChunk::texts - 1> textFields{CallField::Time,      CallField::CalledNo,
                                                                 CallField::AnswerLoc, CallField::NetAddress,
                                                                 CallField::Code,      CallField::AnswerInd};
constexpr std::size_t callerText = CallChunk::texts - 1;

std::size_t indexOf(CallField field) {
    return static_cast<std::size_t>(field);
}

/// The first five characters with a colon for the third, which no statement looks at.
std::string timeOf(std::string_view callTime) {
    std::string time;
    int characters = 0;
    for (const char c : callTime) {
        characters += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
        if (characters > 5)
            break;
        if (characters != 3)
            time += c;
        else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            time += ':';
    }
    return time;
}

/// The C library of Linux keeps freed blocks of a thread for that thread.
void returnFreedMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

class DateIds {
public:
    std::uint32_t idOf(double date) {
        const auto bits = std::bit_cast<std::uint64_t>(date);
        if (bits == lastBits_ && !dates_.empty())
            return last_;
        lastBits_ = bits;
        const auto [found, isNew] = ids_.try_emplace(bits, static_cast<std::uint32_t>(dates_.size()));
        if (isNew && std::isnan(date))
            dates_.emplace_back();
        else if (isNew)
            dates_.emplace_back(Date{date});
        return last_ = found->second;
    }
    std::vector<Value> values() const { return dates_; }

private:
    std::unordered_map<std::uint64_t, std::uint32_t> ids_;
    std::vector<Value> dates_;
    std::uint64_t lastBits_ = 0;
    std::uint32_t last_ = 0;
};

/// Chunks of rows to columns in the order of the rows.
class Encoder {
public:
    explicit Encoder(std::size_t expectedRows) {
        for (std::size_t i = 0; i < callFieldCount; ++i) {
            if (i != indexOf(CallField::AnswerInd))
                columns_.ids[i].reserve(expectedRows);
        }
        columns_.answerInd.reserve(expectedRows);
        columns_.money.reserve(expectedRows);
        payphones_.reserve(expectedRows);
        callerOf_.reserve(expectedRows);
    }

    void take(const CallChunk& chunk) {
        columns_.money.insert(columns_.money.end(), chunk.money.begin(), chunk.money.end());
        payphones_.insert(payphones_.end(), chunk.payphones.begin(), chunk.payphones.end());
        const std::uint16_t* length = chunk.lengths.data();
        const char* at = chunk.bytes.data();
        for (std::size_t row = 0; row < chunk.rows(); ++row) {
            add(CallField::Date, dates_.idOf(chunk.dates[row]));
            for (std::size_t i = 0; i < CallChunk::texts; ++i, ++length) {
                const bool isNull = *length == CallChunk::null;
                const std::string_view text(at, isNull ? 0 : *length);
                at += text.size();
                if (i == callerText)
                    callerOf_.push_back(isNull ? callers_.indexOfNull() : callers_.indexOf(text));
                else
                    add(textFields[i], isNull ? texts_[i].idOfNull() : idOf(i, text));
            }
        }
    }

    /// Sorts the calls by caller, and tells the share that is done.
    std::optional<CallColumns> finish(const CallProgress& progress, const std::function<void(double)>& done);

private:
    std::uint32_t idOf(std::size_t text, std::string_view characters) {
        if (textFields[text] != CallField::Time)
            return texts_[text].idOf(characters);
        if (characters.size() < 5)
            return texts_[text].idOf(timeOf(characters));
        char time[5] = {characters[0], characters[1], ':', characters[3], characters[4]};
        const bool plain = static_cast<signed char>(characters[0] | characters[1] | characters[2] | characters[3] |
                                                    characters[4]) >= 0;
        return plain ? texts_[text].idOf({time, sizeof time}) : texts_[text].idOf(timeOf(characters));
    }

    void add(CallField field, std::uint32_t id) {
        const bool isSmall = field == CallField::AnswerInd;
        if (id >= (isSmall ? 0xFFu : 0xFFFFu))
            throw DatabaseError(3421,
                                "The column '" + nameOf(field) + "' of 'TblTeleItem' has too many different values");
        if (isSmall)
            columns_.answerInd.push_back(static_cast<std::uint8_t>(id));
        else
            columns_.ids[indexOf(field)].push_back(static_cast<std::uint16_t>(id));
    }

    static std::string nameOf(CallField field) {
        const std::size_t i = indexOf(field);
        return callColumnNames()[i == 0 ? 0 : i + 1];
    }

    void placeCalls();
    /// The memory of the column becomes `spare`, for the next column of its type. False where `progress` stopped.
    template<typename T>
    bool sortColumn(std::vector<T>& column, std::vector<T>& spare, const CallProgress& progress) const {
        const auto sort = [&] {
            spare.resize(column.size());
            for (std::size_t row = 0; row < column.size(); ++row)
                spare[callerOf_[row]] = column[row];
            column.swap(spare);
        };
        return runYielding({sort}, progress) && progress(); // a column alone may be done before the first yield
    }
    bool sortColumns(const CallProgress& progress, const std::function<void(double)>& done);

    CallColumns columns_;
    DateIds dates_;
    std::array<TextIds, callerText> texts_;
    CallerNumbers callers_;
    std::vector<bool> payphones_;         ///< by row
    std::vector<std::uint32_t> callerOf_; ///< by row; by placeCalls() its place in the order of callers
};

/// Where each row goes, and the flags of the callers.
void Encoder::placeCalls() {
    const std::uint32_t count = callers_.size();
    const std::uint32_t nullCaller = callers_.nullIndex();
    callers_ = {}; // their numbers are no longer needed, and are the largest thing beside the columns
    std::vector<std::uint32_t> next(count + 1, 0);
    std::vector<bool> answered(count, false);
    for (std::size_t row = 0; row < callerOf_.size(); ++row) {
        ++next[callerOf_[row] + 1];
        if (columns_.answerKinds[columns_.answerInd[row]] == AnswerKind::Answered)
            answered[callerOf_[row]] = true;
    }
    if (nullCaller != CallerNumbers::none)
        answered[nullCaller] = false;
    columns_.callerFlags.assign(callerOf_.size(), 0);
    for (std::uint32_t caller = 0; caller < count; ++caller) {
        const std::uint32_t start = next[caller];
        next[caller + 1] += start;
        if (answered[caller] || caller == nullCaller)
            std::fill(columns_.callerFlags.begin() + start, columns_.callerFlags.begin() + next[caller + 1],
                      caller == nullCaller ? CallColumns::callerIsNull : CallColumns::callerWasAnswered);
        columns_.callerFlags[start] |= CallColumns::firstOfCaller;
    }
    for (std::size_t row = 0; row < callerOf_.size(); ++row) {
        callerOf_[row] = next[callerOf_[row]]++;
        if (payphones_[row])
            columns_.callerFlags[callerOf_[row]] |= CallColumns::fromPayphone;
    }
    payphones_ = {};
    columns_.callers = count;
}

/// One column after the other, so that only one is there twice.
bool Encoder::sortColumns(const CallProgress& progress, const std::function<void(double)>& done) {
    const double columns = 2.0 + static_cast<double>(columns_.ids.size());
    double sorted = 0;
    const auto sort = [&](auto& column, auto& spare) {
        done(sorted++ / columns);
        return column.empty() || sortColumn(column, spare, progress);
    };
    {
        std::vector<std::int32_t> spare;
        if (!sort(columns_.money, spare))
            return false;
    }
    {
        std::vector<std::uint8_t> spare;
        if (!sort(columns_.answerInd, spare))
            return false;
    }
    std::vector<std::uint16_t> spare;
    return std::all_of(columns_.ids.begin(), columns_.ids.end(), [&](auto& column) { return sort(column, spare); });
}

std::optional<CallColumns> Encoder::finish(const CallProgress& progress, const std::function<void(double)>& done) {
    columns_.values[indexOf(CallField::Date)] = dates_.values();
    for (std::size_t i = 0; i < callerText; ++i)
        columns_.values[indexOf(textFields[i])] = texts_[i].values();
    columns_.answerKinds = answerKindsOf(columns_.valuesOf(CallField::AnswerInd));
    const auto place = [this] {
        placeCalls();
        returnFreedMemory(); // what the numbers of the callers took is room for the sorting
    };
    if (!runYielding({place}, progress))
        return {};
    if (!sortColumns(progress, done))
        return {};
    return std::move(columns_);
}

/// Hands chunks from the reading thread to the encoding one and back.
class Exchange {
public:
    /// A chunk to fill, waiting for the other thread where it has all of them; nothing when none came in time.
    std::optional<CallChunk> emptyChunk() {
        std::unique_lock lock(mutex_);
        if (!changed_.wait_for(lock, std::chrono::milliseconds(40), [&] { return failed_ || waiting_.size() < most; }))
            return {};
        if (spare_.empty())
            return CallChunk();
        CallChunk chunk = std::move(spare_.back());
        spare_.pop_back();
        return chunk;
    }
    void give(CallChunk chunk) {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(chunk));
        changed_.notify_all();
    }
    void close() {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        changed_.notify_all();
    }
    bool hasFailed() const {
        const std::lock_guard lock(mutex_);
        return failed_;
    }

    /// On the encoding thread, until close().
    void encodeAll(Encoder& encoder) {
        try {
            while (auto chunk = nextChunk()) {
                encoder.take(*chunk);
                const std::lock_guard lock(mutex_);
                spare_.push_back(std::move(*chunk));
            }
        } catch (...) {
            const std::lock_guard lock(mutex_);
            failed_ = true;
            changed_.notify_all();
            throw;
        }
    }

private:
    std::optional<CallChunk> nextChunk() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return closed_ || !waiting_.empty(); });
        if (waiting_.empty())
            return {};
        CallChunk chunk = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        changed_.notify_all();
        return chunk;
    }

    static constexpr std::size_t most = 4;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<CallChunk> waiting_, spare_;
    bool closed_ = false;
    bool failed_ = false;
};

/// A guess only: rows may be missing below the highest number, or a damaged file may claim any.
std::size_t expectedRows(Database& project) {
    sqlite::Statement highest(project.connection(),
                              "SELECT max(rowid) FROM " + quoteIdentifier(project.schema()) + ".TblTeleItem");
    highest.step();
    constexpr std::int64_t most = 20'000'000;
    const std::int64_t rows = highest.integer(0);
    return rows > 0 && rows <= most ? static_cast<std::size_t>(rows) : 0;
}

/// Ends the encoding thread on every way out.
struct Closing {
    Exchange& exchange;
    ~Closing() { exchange.close(); }
};

/// Whether all rows were read.
bool readAll(CallReader& reader, Exchange& exchange, const CallProgress& progress,
             const std::function<void(std::size_t)>& rowsRead) {
    std::size_t rows = 0;
    while (!exchange.hasFailed()) {
        rowsRead(rows);
        if (!progress())
            return false;
        auto chunk = exchange.emptyChunk();
        if (!chunk)
            continue;
        reader.read(*chunk);
        if (chunk->rows() == 0)
            break;
        rows += chunk->rows();
        exchange.give(std::move(*chunk));
    }
    return true;
}

} // namespace

std::optional<CallColumns> buildCallColumns(Database& project, const CallProgress& progress,
                                            const std::function<void(double)>& done) {
    const SmallPageCache readOnce(project);
    CallReader reader(project);
    const std::size_t expected = expectedRows(project);
    Encoder encoder(expected);
    const auto tell = [&](double share) {
        if (done)
            done(std::min(share, 1.0));
    };
    constexpr double shareOfReading = 0.7; // sorting takes the rest
    const auto rowsRead = [&](std::size_t rows) {
        tell(shareOfReading * static_cast<double>(rows) / static_cast<double>(std::max(expected, rows + 1)));
    };
    Exchange exchange;
    auto encoding = std::async(std::launch::async, [&] { exchange.encodeAll(encoder); });
    bool complete = false;
    {
        const Closing closing{exchange};
        complete = readAll(reader, exchange, progress, rowsRead);
    }
    while (encoding.wait_for(std::chrono::milliseconds(40)) != std::future_status::ready)
        complete = progress() && complete;
    encoding.get();
    if (!complete)
        return {};
    return encoder.finish(progress, [&](double share) { tell(shareOfReading + (1 - shareOfReading) * share); });
}
