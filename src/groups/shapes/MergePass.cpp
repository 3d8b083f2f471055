#include "groups/shapes/MergePass.h"

#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/RuntimeError.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/shapes/ModData_Merge.h"

namespace {

std::int32_t countIn(const Value& value) {
    return value.isNull() ? 0 : value.asLong();
}

/// What the last pair of several shows is what the one before it showed.
std::string progressText(std::size_t pair, std::size_t pairs) {
    const std::string step = "Step " + std::to_string(MergeStep) + " of " + std::to_string(MergeStepTotal) + ": ";
    if (pairs == 1)
        return step + "Final merge";
    const std::size_t first = pair < pairs ? pair : pair - 1;
    return step + "Merging regions " + std::to_string(first) + " and " + std::to_string(first + 1) + " of " +
           std::to_string(pairs);
}

void addRow(Recordset& table, std::size_t id, const PolygonMerger& merged) {
    table.AddNew();
    table.set("PolygonID", static_cast<std::int64_t>(id));
    table.set("Numvert", merged.NumVert());
    table.set("BoundLowx", merged.BoundLowX());
    table.set("BoundLowY", merged.BoundLowY());
    table.set("BoundUppX", merged.BoundUppX());
    table.set("BoundUppY", merged.BoundUppY());
    table.set("CenterX", merged.CenterX());
    table.set("CenterY", merged.CenterY());
    table.set("Vertices", merged.Vertices());
    table.set("Numparts", merged.NumParts());
    table.set("Parts", merged.Parts());
    table.Update();
}

} // namespace

MergePass::MergePass(Recordset& rows, const Caption& statusLabel)
    : rows_(rows), statusLabel_(statusLabel), rowCount_(rows.RecordCount()),
      pairs_(static_cast<std::size_t>(rowCount_ / 2)) {}

void MergePass::uniteRows() {
    while (!rows_.EOF_()) {
        if (row_ == rowCount_)
            joinLastPair();
        else
            startPair();
        uniteWithCurrentRow();
    }
}

void MergePass::startPair() {
    show(statusLabel_, progressText(slots_.size() + 1, pairs_));
    progress().yield();
    PolygonMerger& merger = *slots_.emplace_back(std::make_unique<PolygonMerger>());
    logAndGoOn([&] {
        merger.Vertices1 = rows_.value("Vertices");
        merger.Parts1 = rows_.value("Parts");
        merger.NumParts1 = countIn(rows_.value("NumParts"));
        members_ = rows_.value("PolygonID").asText();
    });
    progress().yield();
    advance();
}

void MergePass::joinLastPair() {
    PolygonMerger& merger = *slots_.back();
    merger.Vertices1 = merger.Vertices();
    merger.NumParts1 = merger.NumParts();
    merger.Parts1 = merger.Parts();
}

void MergePass::uniteWithCurrentRow() {
    PolygonMerger& merger = *slots_.back();
    logAndGoOn([&] {
        merger.Vertices2 = rows_.value("Vertices");
        merger.Parts2 = rows_.value("Parts");
        merger.NumParts2 = countIn(rows_.value("NumParts"));
        members_ += ", " + rows_.value("PolygonID").asText();
    });
    progress().yield();
    logAndGoOn([&] {
        try {
            merger.Merge();
        } catch (const RuntimeError& error) {
            throw RuntimeError(error.number(), "Group \"" + MergeGroupName + "\", step " + std::to_string(MergeStep) +
                                                   ", shapes " + members_ + ": " + error.what());
        }
    });
    progress().yield();
    advance();
}

void MergePass::advance() {
    rows_.MoveNext();
    ++row_;
}

bool MergePass::replaceRows() const {
    return onSystemDatabase([this] {
        WorkspaceTransaction transaction(*systemDatabase().workspace());
        systemDatabase().execute("DELETE * FROM PGN_TEMP");
        const auto table = systemDatabase().openRecordset("SELECT * FROM PGN_TEMP");
        for (std::size_t slot = 0; slot < slots_.size(); ++slot)
            addRow(*table, slot, *slots_[slot]);
        transaction.commit();
    });
}
