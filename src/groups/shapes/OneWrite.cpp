#include "groups/shapes/OneWrite.h"

#include "core/LogAndGoOn.h"
#include "data/engine/Workspace.h"

#include <optional>

void inOneWrite(const std::function<void()>& steps) {
    std::optional<WorkspaceTransaction> transaction;
    logAndGoOn([&] { transaction.emplace(*defaultWorkspace()); });
    steps();
    if (transaction)
        logAndGoOn([&] { transaction->commit(); });
}
