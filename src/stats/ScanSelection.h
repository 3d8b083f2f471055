#pragma once

#include "stats/FigureSource.h"
#include "stats/calls/CallPredicate.h"
#include "stats/calls/ScanCalls.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// The calls of gdbProject with a selection over them, ready for a scan.
struct ScanSelection {
    /// `columns` may be null. Throws DatabaseError 5 where they are, or the selection does not fit them, with the
    /// reason; 3078 where the project lacks a table.
    ScanSelection(const CallColumns* columns, const std::string& where);

    const CallPredicate* predicate() const { return predicate_ ? &*predicate_ : nullptr; }

private:
    std::optional<CallPredicate> predicate_; ///< nothing for all calls
};

/// Whether a condition keeps its meaning behind "… AND ".
bool standsBehindAnd(const std::string& where);

/// Whether statements may do what a scan cannot; where not, that is logged under gsCurrentProc with the reason.
bool mayAskStatements(const std::string& reason);

/// The sums of every area and AnswerInd with calls, in the order of both: AnswerInd as texts, null first, those that
/// compare equal as one. Codes of `leftOut` do not count; it may be empty.
void forEachSum(const CallColumns& columns, const CallScan& scan, const ScanBoundary& boundary,
                const std::vector<bool>& leftOut,
                const std::function<void(std::uint32_t area, const Value& answerInd, const CallSums&)>& take);

/// Adds calls of one AnswerInd to the figures of a side panel.
void addCalls(SpecialRowFigures& figures, const Value& answerInd, const CallSums& sums);
