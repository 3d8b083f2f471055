#pragma once

#include "core/Caption.h"
#include "data/engine/Recordset.h"
#include "groups/shapes/PolygonMerger.h"

#include <memory>
#include <string>
#include <vector>

/// One pass of a merge: the rows of PGN_TEMP become half as many, the first united with the second, the third with the
/// fourth and so on; an odd last row joins the last pair. Errors are logged and passed over. Main thread.
class MergePass {
public:
    /// At least two rows; both must outlive the pass. The cursor stands on the first row.
    MergePass(Recordset& rows, const Caption& statusLabel);

    /// Unites all pairs. Shows the progress and yields around each union.
    void uniteRows();
    /// Puts the unions in place of the rows of PGN_TEMP: all of them, or none where that fails. Returns whether it did.
    bool replaceRows() const;

    /// 1: this was the last pass.
    std::size_t pairs() const { return pairs_; }
    const PolygonMerger& lastUnion() const { return *slots_.back(); }

private:
    void startPair();
    void joinLastPair();
    void uniteWithCurrentRow();
    void advance();

    Recordset& rows_;
    const Caption& statusLabel_;
    long rowCount_;
    std::size_t pairs_;
    long row_ = 1;                                      ///< number of the current row, from 1
    std::vector<std::unique_ptr<PolygonMerger>> slots_; ///< one for each pair that was started
    std::string members_;                               ///< the shapes of the last slot, for messages
};
