#include "stats/calls/ScanCalls.h"

#include <algorithm>
#include <future>
#include <memory>

namespace {

constexpr std::size_t blockRows = CallPredicate::mostRows;
constexpr std::size_t kinds = 3;

/// The selected calls of a block, side by side.
struct Block {
    std::array<std::uint32_t, blockRows> row;    ///< from the start of the block
    std::array<std::uint32_t, blockRows> caller; ///< from 1
    std::array<std::uint16_t, blockRows> code;
    std::array<std::uint8_t, blockRows> kind; ///< AnswerKind; Unknown for an unanswered call that makes no lost caller
    std::size_t size = 0;
};

/// Counts distinct pairs of caller and area of one boundary, kind by kind: the calls come caller by caller, so that the
/// last caller seen tells whether a pair is new.
class CallerCounter {
public:
    explicit CallerCounter(const ScanBoundary& boundary)
        : boundary_(boundary), stride_(boundary.areas + 1), cells_(stride_ * kinds) {
        for (const auto& areas : boundary.areasOfCode) {
            // Codes of no area count in a place of their own that nobody reads.
            single_.push_back(areas.size() == 1 ? areas.front() : boundary.areas);
            hasSeveral_.push_back(areas.size() > 1);
            anySeveral_ = anySeveral_ || areas.size() > 1;
        }
    }

    /// Call by call: the stamps need the callers in their order.
    void count(const Block& block) {
        if (anySeveral_)
            return countSeveral(block);
        for (std::size_t i = 0; i < block.size; ++i)
            meet(single_[block.code[i]], block.kind[i], block.caller[i]);
    }

    void addTo(CallScan::Callers& callers, CallersBy callersBy) const {
        const bool byOutcome = callersBy == CallersBy::Outcome;
        addTo(byOutcome ? callers.answered : callers.all, AnswerKind::Answered);
        if (byOutcome)
            addTo(callers.lost, AnswerKind::Unanswered);
    }

private:
    void addTo(std::vector<std::int64_t>& counts, AnswerKind kind) const {
        counts.resize(boundary_.areas);
        for (std::size_t area = 0; area < boundary_.areas; ++area)
            counts[area] += cells_[static_cast<std::size_t>(kind) * stride_ + area].callers;
    }

    void countSeveral(const Block& block) {
        for (std::size_t i = 0; i < block.size; ++i) {
            if (!hasSeveral_[block.code[i]]) {
                meet(single_[block.code[i]], block.kind[i], block.caller[i]);
                continue;
            }
            for (const std::uint32_t area : boundary_.areasOfCode[block.code[i]])
                meet(area, block.kind[i], block.caller[i]);
        }
    }

    struct Cell {
        std::uint32_t last = 0;
        std::uint32_t callers = 0;
    };
    void meet(std::uint32_t area, std::uint8_t kind, std::uint32_t caller) {
        Cell& cell = cells_[kind * stride_ + area];
        cell.callers += cell.last != caller;
        cell.last = caller;
    }

    const ScanBoundary& boundary_;
    std::size_t stride_;
    std::vector<Cell> cells_; ///< kind × area
    std::vector<std::uint32_t> single_;
    std::vector<std::uint8_t> hasSeveral_;
    bool anySeveral_ = false;
};

/// One thread's share of the calls, from the first call of a caller to the last of another.
class Scan {
public:
    Scan(const CallColumns& columns, const CallPredicate* predicate, std::span<const ScanBoundary* const> boundaries,
         CallersBy callersBy)
        : columns_(columns), predicate_(predicate), callersBy_(callersBy), inds_(columns.answerKinds.size()),
          sums_(columns.valuesOf(CallField::Code).size() * inds_) {
        for (const ScanBoundary* boundary : boundaries)
            counters_.emplace_back(*boundary);
        for (std::size_t flags = 0; flags < CallColumns::flagCount; ++flags) {
            for (std::size_t ind = 0; ind < inds_; ++ind)
                kinds_[flags * 256 + ind] = static_cast<std::uint8_t>(kindOf(flags, columns.answerKinds[ind]));
        }
        const auto& numbers = columns.valuesOf(CallField::CalledNo);
        const auto null = std::find_if(numbers.begin(), numbers.end(), [](const Value& v) { return v.isNull(); });
        nullNumber_ = null == numbers.end() ? -1 : static_cast<std::int32_t>(null - numbers.begin());
    }

    void run(std::size_t begin, std::size_t end) {
        for (std::size_t at = begin; at < end; at += blockRows) {
            const std::size_t count = std::min(blockRows, end - at);
            if (predicate_)
                takeSelected(at, count);
            else
                takeAll(at, count);
            for (CallerCounter& counter : counters_)
                counter.count(*block_);
        }
    }

    void addTo(CallScan& result) const {
        for (std::size_t i = 0; i < sums_.size(); ++i)
            result.sums[i] += sums_[i];
        for (std::size_t i = 0; i < counters_.size(); ++i)
            counters_[i].addTo(result.callers[i], callersBy_);
    }

private:
    /// As which a call counts for its caller; Unknown: not at all.
    AnswerKind kindOf(std::size_t flags, AnswerKind kind) const {
        if (callersBy_ == CallersBy::All)
            return (flags & CallColumns::callerIsNull) != 0 ? AnswerKind::Unknown : AnswerKind::Answered;
        const bool found = (flags & CallColumns::callerWasAnswered) != 0 && kind == AnswerKind::Unanswered;
        return found ? AnswerKind::Unknown : kind;
    }

    void takeAll(std::size_t begin, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            caller_ += columns_.callerFlags[begin + i] & CallColumns::firstOfCaller;
            block_->caller[i] = caller_;
            take(begin + i, i);
        }
        block_->size = count;
        countMissingNumbers(begin, count, nullptr);
    }

    void takeSelected(std::size_t begin, std::size_t count) {
        predicate_->select(columns_, begin, count, mask_->data(), *scratch_);
        std::size_t selected = 0;
        for (std::size_t i = 0; i < count; ++i) {
            caller_ += columns_.callerFlags[begin + i] & CallColumns::firstOfCaller;
            block_->row[selected] = static_cast<std::uint32_t>(i);
            block_->caller[selected] = caller_;
            selected += (*mask_)[i];
        }
        for (std::size_t i = 0; i < selected; ++i)
            take(begin + block_->row[i], i);
        block_->size = selected;
        countMissingNumbers(begin, selected, block_->row.data());
    }

    void take(std::size_t row, std::size_t place) {
        const std::uint16_t code = codes_[row];
        const std::uint8_t ind = columns_.answerInd[row];
        const std::int32_t money = columns_.money[row];
        block_->code[place] = code;
        block_->kind[place] = kinds_[columns_.callerFlags[row] * std::size_t{256} + ind];
        CallSums& sums = sums_[code * inds_ + ind];
        ++sums.calls;
        sums.cost += std::max(money, 0);
        sums.revenue += std::min(money, 0);
    }

    /// `rows` are the selected ones, or null for all. Most projects have no call without a number.
    void countMissingNumbers(std::size_t begin, std::size_t count, const std::uint32_t* rows) {
        if (nullNumber_ < 0)
            return;
        const auto& numbers = columns_.idsOf(CallField::CalledNo);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t row = begin + (rows ? rows[i] : i);
            if (numbers[row] == nullNumber_)
                ++sums_[codes_[row] * inds_ + columns_.answerInd[row]].callsWithoutNumber;
        }
    }

    const CallColumns& columns_;
    const CallPredicate* predicate_;
    CallersBy callersBy_;
    const std::uint16_t* codes_ = columns_.idsOf(CallField::Code).data();
    std::size_t inds_;
    std::vector<CallSums> sums_;
    std::vector<CallerCounter> counters_;
    std::array<std::uint8_t, CallColumns::flagCount * 256> kinds_{}; ///< by the caller's flags and the id of AnswerInd
    std::int32_t nullNumber_ = -1;
    std::uint32_t caller_ = 0;
    std::unique_ptr<Block> block_ = std::make_unique<Block>();
    std::unique_ptr<std::array<std::uint8_t, blockRows>> mask_ =
        std::make_unique<std::array<std::uint8_t, blockRows>>();
    std::unique_ptr<CallPredicate::Scratch> scratch_ = std::make_unique<CallPredicate::Scratch>();
};

/// The start of a caller near the middle.
std::size_t middleCaller(const CallColumns& columns) {
    std::size_t at = columns.size() / 2;
    while (at < columns.size() && (columns.callerFlags[at] & CallColumns::firstOfCaller) == 0)
        ++at;
    return at;
}

} // namespace

CallSums& CallSums::operator+=(const CallSums& other) {
    calls += other.calls;
    callsWithoutNumber += other.callsWithoutNumber;
    cost += other.cost;
    revenue += other.revenue;
    return *this;
}

CallScan scanCalls(const CallColumns& columns, const CallPredicate* predicate,
                   std::span<const ScanBoundary* const> boundaries, CallersBy callersBy) {
    Scan first(columns, predicate, boundaries, callersBy);
    Scan second(columns, predicate, boundaries, callersBy);
    const std::size_t middle = middleCaller(columns);
    auto secondHalf = std::async(std::launch::async, [&] { second.run(middle, columns.size()); });
    first.run(0, middle);
    secondHalf.get();
    CallScan result;
    result.answerInds = columns.answerKinds.size();
    result.sums.resize(columns.valuesOf(CallField::Code).size() * result.answerInds);
    result.callers.resize(boundaries.size());
    first.addTo(result);
    second.addTo(result);
    return result;
}

std::vector<CallSums> sumPayphoneCalls(const CallColumns& columns, const CallPredicate* predicate) {
    std::vector<CallSums> sums(columns.answerKinds.size());
    std::vector<std::uint8_t> mask(blockRows, 1);
    const auto scratch = std::make_unique<CallPredicate::Scratch>();
    for (std::size_t begin = 0; begin < columns.size(); begin += blockRows) {
        const std::size_t count = std::min(blockRows, columns.size() - begin);
        if (predicate)
            predicate->select(columns, begin, count, mask.data(), *scratch);
        for (std::size_t i = 0; i < count; ++i) {
            if ((columns.callerFlags[begin + i] & CallColumns::fromPayphone) == 0 || mask[i] == 0)
                continue;
            CallSums& sum = sums[columns.answerInd[begin + i]];
            ++sum.calls;
            sum.cost += std::max(columns.money[begin + i], 0);
            sum.revenue += std::min(columns.money[begin + i], 0);
        }
    }
    return sums;
}
